#include "validation/project_review.h"

#include "validation/form_rules.h"

#include <QStringList>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A rule as the review applies it.
struct ReviewRule {
    std::optional<FormField> field; ///< what is judged; none = the list of questions
    std::optional<FormField> leadsTo;
    QLatin1StringView code;
    void (*validate)(Project &project, bool &failed, QString &message);
};

template <FormField field, void (*rule)(QString &, bool &, QString &)>
void Validate(Project &project, bool &failed, QString &message)
{
    rule(project.*RowOf(field).text, failed, message);
}

void ValidateQuestions(Project &project, bool &failed, QString &message)
{
    ValidateQuestionCount(project.source.QuestionCount(), failed, message);
}

// By intention an entry on the description leads to the name.
constexpr ReviewRule reviewRules[] = {
    {FormField::Name, FormField::Name, QLatin1StringView("invalid-form-name"),
     Validate<FormField::Name, ValidateAppName>},
    {FormField::Version, FormField::Version, QLatin1StringView("invalid-form-version"),
     Validate<FormField::Version, ValidateAppVersion>},
    {FormField::Description, FormField::Name, QLatin1StringView("invalid-description"),
     Validate<FormField::Description, ValidateAppDesc>},
    {std::nullopt, std::nullopt, QLatin1StringView("invalid-question-count"), ValidateQuestions},
    {FormField::DataFolder, FormField::DataFolder, QLatin1StringView("invalid-data-folder"),
     Validate<FormField::DataFolder, ValidateAppDir>},
};

static_assert(std::ranges::all_of(formFields,
                                  [](const FormFieldRow &row) {
                                      return std::ranges::any_of(reviewRules,
                                                                 [&](const auto &rule) {
                                                                     return rule.field == row.field;
                                                                 });
                                  }),
              "every field of the form information has a rule");

/// The step of the designer that can mend what was judged.
int StepOf(const ReviewRule &rule)
{
    constexpr int stepOfQuestions = 2;
    return rule.field ? RowOf(*rule.field).step : stepOfQuestions;
}

/// What was judged, by its name to a user.
QLatin1StringView NameOf(const ReviewRule &rule)
{
    return rule.field ? RowOf(*rule.field).name : "questions"_L1;
}

} // namespace

QString ListText(const ReviewEntry &entry)
{
    return u"Step%1\t\t%2"_s.arg(QString::number(entry.step), entry.message);
}

bool ReviewResult::Passed() const
{
    return std::ranges::none_of(stepFailed, std::identity());
}

ReviewResult ReviewProject(Project &project)
{
    ReviewResult result;
    for (const ReviewRule &rule : reviewRules) {
        QString message;
        rule.validate(project, result.stepFailed[static_cast<size_t>(StepOf(rule) - 1)], message);
        if (!message.isEmpty())
            result.entries.push_back(
                {StepOf(rule), rule.code, NameOf(rule), message, rule.leadsTo});
    }
    return result;
}

StepVerdict CheckStep(int step, Project &project)
{
    StepVerdict verdict;
    QStringList messages;
    for (const ReviewRule &rule : reviewRules) {
        if (StepOf(rule) != step)
            continue;
        QString message;
        rule.validate(project, verdict.failed, message);
        messages += message;
    }
    verdict.text = messages.join(u'\n');
    return verdict;
}

} // namespace vellumo
