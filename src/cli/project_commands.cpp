#include "cli/project_commands.h"

#include "cli/inputs.h"
#include "cli/outputs.h"
#include "model/project_writer.h"
#include "model/unreadable_texts.h"
#include "palmgen/script_generator.h"
#include "platform/files.h"
#include "platform/identifier.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Ending WriteScriptOf(const QString &input, const QString &target, const CommandLine &line,
                     const Console &console)
{
    const Result<Project> project = ReadProjectInput(input, console);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    const Script script =
        GenerateScript(*project, line.Has(Option::Identifier) ? line.Value(Option::Identifier)
                                                              : IdentifierDigits(MakeIdentifier()));
    if (!script.outcome)
        return Refuse(console, Exit::NotPassed, {script.outcome.error().text, InputName(input)});
    return Deliver(target, script.bytes, "script"_L1, console);
}

Ending Rewrite(const QString &input, const QString &target, const Console &console)
{
    const Result<Project> project = ReadProjectInput(input, console);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    if (const auto unreadable = FindUnreadableTexts(*project); !unreadable.empty())
        return Refuse(
            console, Exit::NotWritten,
            {Visible(Quote(unreadable[0].place, unreadable[0].text) + ": "_L1 + UnreadableReason()),
             InputName(input)});
    // A project in another encoding is read with characters that windows-1252 lacks.
    const Result<QByteArray> bytes = WriteProject(*project);
    if (!bytes)
        return Refuse(console, Exit::NotWritten, {bytes.error().text, InputName(input)});
    return Deliver(target, *bytes, "rewritten"_L1, console);
}

} // namespace

Exit WriteScript(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, u"-"_s);
    if (console.json && target == "-"_L1)
        return RefuseMixture(console);
    return ForInput(line, console, [&](const QString &input) {
        return WriteScriptOf(input, target, line, console);
    });
}

Exit RewriteProject(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, line.inputs.first());
    if (console.json && target == "-"_L1)
        return RefuseMixture(console);
    if (!line.Has(Option::Output) && target != "-"_L1 && IsWrittenInto(target))
        return Refuse(console, Exit::WrongUse,
                      {u"What is no file cannot be rewritten in its place: -o FILE."_s, target});
    return ForInput(line, console,
                    [&](const QString &input) { return Rewrite(input, target, console); });
}

} // namespace vellumo
