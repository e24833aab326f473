#include "cli/changed_project.h"

#include "cli/outputs.h"
#include "model/project_writer.h"
#include "model/unreadable_texts.h"
#include "platform/files.h"

using namespace Qt::StringLiterals;

namespace vellumo {

Exit CheckTarget(const QString &given, const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, given);
    if (console.json && target == "-"_L1)
        return RefuseMixture(console);
    if (!line.Has(Option::Output) && target != "-"_L1 && IsWrittenInto(target))
        return Refuse(console, Exit::WrongUse,
                      {u"What is no file cannot be rewritten in its place: -o FILE."_s, target});
    return Exit::Fine;
}

Ending DeliverProject(const Project &project, const QString &inputName, const QString &target,
                      QLatin1StringView code, const Console &console)
{
    if (const auto unreadable = FindUnreadableTexts(project); !unreadable.empty())
        return Refuse(
            console, Exit::NotWritten,
            {Visible(Quote(unreadable[0].place, unreadable[0].text) + ": "_L1 + UnreadableReason()),
             inputName});
    // Sheets, and projects in another encoding, have characters that windows-1252 lacks.
    const Result<QByteArray> bytes = WriteProject(project);
    if (!bytes)
        return Refuse(console, Exit::NotWritten, {bytes.error().text, inputName});
    return Deliver(target, *bytes, code, console);
}

Ending Said(const Ending &ending, const QString &text, const QJsonObject &more,
            const QString &target, const Console &console)
{
    if (ending.exit != Exit::Fine)
        return ending;
    Ending said = ending;
    said.text = text;
    said.more = more;
    if (target == "-"_L1)
        console.Complain({.kind = "result"_L1, .code = ending.code, .text = text});
    else
        said.shown = text;
    return said;
}

} // namespace vellumo
