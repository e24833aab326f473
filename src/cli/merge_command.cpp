#include "cli/merge_command.h"

#include "cli/changed_project.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "exchange/merged_project.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The project of all inputs that could be taken so far.
class Merging
{
public:
    explicit Merging(const Console &console) : m_console(console) {}

    void Take(const QString &input)
    {
        m_exits.append(Append(input));
        m_worst = std::max(m_worst, m_exits.last());
    }

    /// Where none has failed: a part of what was asked for is nothing to be written.
    Ending Write(const QString &target) const
    {
        if (m_worst != Exit::Fine)
            return m_worst;
        return DeliverProject(*m_merged, {}, target, "merged"_L1, m_console);
    }

    /// What became of each input; that is known only when all are written.
    void TellOf(const QStringList &inputs, bool written) const
    {
        for (qsizetype i = 0; i < inputs.size(); ++i)
            Tell(EndingOf(m_exits[i], written), InputName(inputs[i]), m_console);
    }

private:
    Exit Append(const QString &input)
    {
        Result<Project> project = ReadProjectInput(input, m_console);
        if (!project)
            return Refuse(m_console, Exit::Unreadable, project.error());
        if (!m_merged)
            m_merged = std::move(*project);
        else if (const Outcome appended = AppendProject(*m_merged, *project); !appended)
            return Refuse(m_console, Exit::NotPassed, {appended.error().text, InputName(input)});
        return Exit::Fine;
    }

    static Ending EndingOf(Exit exit, bool written)
    {
        if (exit != Exit::Fine)
            return exit;
        if (written)
            return {exit, "taken"_L1, u"Its questions were taken."_s};
        return {exit, "not-taken"_L1, u"Its questions could be taken, and nothing was written."_s};
    }

    const Console &m_console;
    std::optional<Project> m_merged;
    QList<Exit> m_exits; ///< of each input
    Exit m_worst = Exit::Fine;
};

} // namespace

Exit MergeProjects(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, u"-"_s);
    if (console.json && target == "-"_L1)
        return RefuseMixture(console);
    Merging merging(console);
    TryEachInput(line, console, [&](const QString &input) { merging.Take(input); });
    const Ending ending = merging.Write(target);
    merging.TellOf(line.inputs, ending.exit == Exit::Fine);
    TellOfFile(ending, target, console);
    return ending.exit;
}

} // namespace vellumo
