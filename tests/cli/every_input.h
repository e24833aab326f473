#pragma once

#include "cli/commands.h"
#include "vellumo_run.h"

#include <QSet>

namespace vellumo {

enum class InputKind { Project, Database, Sheet, Items };

/// A place of a command line where an input is named; nothing else is wrong with the line.
struct InputPlace {
    QStringList words; ///< before the input's name
    InputKind kind;
    QStringList after = {};
    int whenUnreadable = 3; ///< the exit status

    QStringList With(const QString &name) const
    {
        const bool isValue = words.last().startsWith(QStringLiteral("--"));
        // Without the dashes a name may be taken for an option.
        return words + (isValue ? QStringList() : QStringList(QStringLiteral("--"))) +
               QStringList(name) + after;
    }
};

/// Knows each place of each command where an input is named.
class EveryInput : public VellumoRun
{
protected:
    EveryInput()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("out"));
        for (const InputKind kind : {InputKind::Project, InputKind::Database, InputKind::Sheet})
            WriteBytes(Good(kind), Sample(kind));
    }

    /// The bytes of an input that is fine.
    static QByteArray Sample(InputKind kind)
    {
        switch (kind) {
        case InputKind::Project:
            return BytesOf(DataFile(QStringLiteral("../../examples/SiteVisit.vmp")));
        case InputKind::Database:
            return BytesOf(DataFile(QStringLiteral("palm/text.prc")));
        case InputKind::Sheet:
            return "Question,Type,Column Name\r\nHow many?,Numeric,COUNT\r\n";
        case InputKind::Items:
            break;
        }
        return "Oak\nAsh\n";
    }

    /// The path of such an input.
    QString Good(InputKind kind) const
    {
        return InFolder(QStringLiteral("good.%1").arg(static_cast<int>(kind)));
    }

    /// What a command makes is in the folder "out".
    QList<InputPlace> Places() const
    {
        using enum InputKind;
        const QString project = Good(Project);
        const QStringList to = {QStringLiteral("-o"), InFolder(QStringLiteral("out/made"))};
        const auto line = [](const char *words) { return QString::fromUtf8(words).split(u' '); };
        return {
            {line("review"), Project},
            {line("create -o") + QStringList(InFolder(QStringLiteral("out"))), Project},
            {line("verify"), Database},
            {line("verify") + QStringList(Good(Database)), Project},
            {line("info"), Project},
            {line("info"), Database},
            {line("screens") + to, Project},
            {line("screens") + to, Database},
            {line("script") + to, Project},
            {line("rewrite"), Project},
            {line("rewrite") + to, Project},
            {line("recover") + to, Database},
            {line("export --csv") + to, Project},
            {line("export --xlsform --lossy") + to, Project},
            {line("import") + to, Sheet},
            {line("import --into") + QStringList(project) + to, Sheet},
            {line("import") + QStringList(Good(Sheet)) + to + line("--into"), Project},
            {line("items --question 3 --column Question --from") + QStringList(Good(Sheet)) + to,
             Project},
            {line("items --question 3") + QStringList(project) + to + line("--from"), Items},
            {line("columns"), Project},
            {line("diff"), Project, {project}, 2},
            {line("diff") + QStringList(project), Project, {}, 2},
            {line("merge") + to, Project, {project}},
            {line("merge") + to + QStringList(project), Project},
        };
    }
};

} // namespace vellumo
