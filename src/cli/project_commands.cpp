#include "cli/project_commands.h"

#include "cli/changed_project.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "cli/reproducible.h"
#include "palmgen/script_generator.h"
#include "platform/identifier.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Ending WriteScriptOf(const QString &input, const QString &target, const CommandLine &line,
                     const Console &console)
{
    QByteArray bytes;
    const Result<Project> project = ReadProjectInput(input, console, &bytes);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    const auto reproduction = ReproductionOf(bytes, line);
    if (!reproduction)
        return RefuseUse(console, reproduction.error().text);
    const Script script = GenerateScript(
        *project, *reproduction ? (*reproduction)->identifier : IdentifierDigits(MakeIdentifier()));
    if (!script.outcome)
        return Refuse(console, Exit::NotPassed, {script.outcome.error().text, InputName(input)});
    return Deliver(target, script.bytes, "script"_L1, console);
}

Ending Rewrite(const QString &input, const QString &target, const Console &console)
{
    const Result<Project> project = ReadProjectInput(input, console);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    return DeliverProject(*project, InputName(input), target, "rewritten"_L1, console);
}

} // namespace

Exit WriteScript(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, u"-"_s);
    if (const Exit checked = CheckOutput(target, line.inputs, console); checked != Exit::Fine)
        return checked;
    return ForInput(line, console, [&](const QString &input) {
        return WriteScriptOf(input, target, line, console);
    });
}

Exit RewriteProject(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, line.inputs.first());
    if (const Exit checked = CheckTarget(line.inputs.first(), line, console); checked != Exit::Fine)
        return checked;
    return ForInput(line, console,
                    [&](const QString &input) { return Rewrite(input, target, console); });
}

} // namespace vellumo
