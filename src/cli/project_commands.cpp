#include "cli/project_commands.h"

#include "model/project_file.h"
#include "palmgen/script_generator.h"
#include "platform/identifier.h"

using namespace Qt::Literals::StringLiterals;

Exit WriteScript(const CommandLine &line, const Console &console)
{
    const QString path = line.projects.first();
    Project project;
    project.path = path;
    if (const Outcome loaded = LoadProject(project); !loaded)
        return Refuse(console, Exit::Unreadable, loaded.error());

    const Script script = GenerateScript(
        project, line.identifier.isEmpty() ? IdentifierDigits(MakeIdentifier()) : line.identifier);
    if (!script.outcome)
        return Refuse(console, Exit::NotPassed, {script.outcome.error().text, path});
    if (line.output.isEmpty()) {
        console.out.write(script.bytes.constData(), script.bytes.size());
        return Exit::Fine;
    }
    if (const Outcome written = ReplaceFile(line.output, script.bytes); !written)
        return Refuse(console, Exit::NotWritten, written.error());
    return Exit::Fine;
}

Exit RewriteProject(const CommandLine &line, const Console &console)
{
    Project project;
    project.path = line.projects.first();
    if (const Outcome loaded = LoadProject(project); !loaded)
        return Refuse(console, Exit::Unreadable, loaded.error());
    const QString target = line.output.isEmpty() ? project.path : line.output;
    if (const Outcome saved = SaveProject(project, target); !saved)
        return Refuse(console, Exit::NotWritten, saved.error());
    return Exit::Fine;
}
