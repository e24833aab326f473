#pragma once

#include "model/form_fields.h"

#include <array>
#include <optional>
#include <vector>

namespace vellumo {

/// What one rule objects to.
struct ReviewEntry {
    int step;                ///< the step of the designer that can mend it, 1 to 3
    QLatin1StringView code;  ///< of the rule, for machines; never changes
    QLatin1StringView field; ///< what was judged, by its name to a user
    QString message;
    std::optional<FormField> leadsTo; ///< where a user is led who follows it; none = to the step
};

/// The entry as the error list shows it: "Step1", two tabs and the message.
QString ListText(const ReviewEntry &entry);

/// What is wrong with a project.
struct ReviewResult {
    std::array<bool, 3> stepFailed = {}; ///< of steps 1, 2 and 3
    std::vector<ReviewEntry> entries;    ///< at most one a rule, in the order of the rules

    bool Passed() const;
};

/// Applies every form rule to the project, whose form information is left without the blanks at
/// its ends; nothing else of the project changes.
ReviewResult ReviewProject(Project &project);

/// What the rules of one step, 1 to 3, object to.
struct StepVerdict {
    bool failed = false;
    QString text; ///< a line a rule, in their order; that of a rule that passed is empty
};

/// Applies the rules of a step to the project, which is left as ReviewProject leaves it.
StepVerdict CheckStep(int step, Project &project);

} // namespace vellumo
