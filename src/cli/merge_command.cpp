#include "cli/merge_command.h"

#include "cli/changed_project.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "exchange/merged_project.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {

Exit MergeProjects(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, u"-"_s);
    if (console.json && target == "-"_L1)
        return RefuseMixture(console);
    std::optional<Project> merged;
    const Exit read = ForEachInput(line, console, [&](const QString &input) -> Ending {
        Result<Project> project = ReadProjectInput(input, console);
        if (!project)
            return Refuse(console, Exit::Unreadable, project.error());
        if (!merged)
            merged = std::move(*project);
        else if (const Outcome appended = AppendProject(*merged, *project); !appended)
            return Refuse(console, Exit::NotPassed, {appended.error().text, InputName(input)});
        return {Exit::Fine, "taken"_L1, u"Its questions were taken."_s};
    });
    if (read != Exit::Fine)
        return read;
    const Ending ending = DeliverProject(*merged, {}, target, "merged"_L1, console);
    if (ending.exit == Exit::Fine)
        Tell(ending, {}, console);
    return ending.exit;
}

} // namespace vellumo
