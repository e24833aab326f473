#include "cli/review_command.h"

#include "cli/inputs.h"
#include "handheld/misfits.h"
#include "validation/delivery_warnings.h"
#include "validation/project_review.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Ending Review(const QString &input, const CommandLine &line, const Console &console)
{
    Result<Project> project = ReadProjectInput(input, console);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    const std::vector<Notice> notices = ReviewNotices(*project, InputName(input), line);
    for (Notice notice : notices) {
        if (line.inputs.size() > 1)
            notice.shown.prepend(Visible(notice.file) + ": "_L1);
        console.Tell(notice);
    }
    const Exit exit = std::ranges::all_of(notices, &Notice::advice) ? Exit::Fine : Exit::NotPassed;
    if (Passes(notices))
        return {exit, "passed"_L1, u"The project passes."_s};
    return {exit, "not-passed"_L1, u"The project does not pass."_s};
}

/// With --strict it is a finding as any other.
Notice WarningNotice(const DeliveryWarning &warning, const QString &inputName, bool strict)
{
    return {.kind = strict ? "finding"_L1 : "warning"_L1,
            .code = warning.code,
            .text = Describe(warning),
            .shown = Visible((strict ? ""_L1 : "warning: "_L1) + Describe(warning)),
            .file = inputName,
            .step = StepOf(warning.place),
            .question = warning.place.question,
            .field = warning.place.field};
}

} // namespace

std::vector<Notice> ReviewNotices(Project &project, const QString &inputName,
                                  const CommandLine &line)
{
    const bool strict = line.Has(Option::Strict);
    std::vector<Notice> notices;
    for (const ReviewEntry &entry : ReviewProject(project).entries)
        notices.push_back({.kind = "finding"_L1,
                           .code = entry.code,
                           .text = entry.message,
                           .shown = ListText(entry),
                           .file = inputName,
                           .step = entry.step,
                           .field = entry.field});
    // After the review, which takes the blanks off the texts that are judged here.
    for (const DeliveryWarning &warning : FindDeliveryWarnings(project))
        notices.push_back(WarningNotice(warning, inputName, strict));
    for (const DeliveryWarning &misfit : FindMisfits(project)) {
        notices.push_back(WarningNotice(misfit, inputName, strict));
        notices.back().advice = !strict;
    }
    return notices;
}

bool Passes(const std::vector<Notice> &notices)
{
    return std::ranges::none_of(notices,
                                [](const Notice &notice) { return notice.kind == "finding"_L1; });
}

Exit ReviewProjects(const CommandLine &line, const Console &console)
{
    return ForEachInput(line, console,
                        [&](const QString &input) { return Review(input, line, console); });
}

} // namespace vellumo
