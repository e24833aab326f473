#include "validation/project_review.h"

#include "model/texts.h"
#include "validation/form_rules.h"

#include <QStringList>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A rule as the review applies it.
struct ReviewRule {
    int step;
    QLatin1StringView code, field;
    void (*validate)(Project &project, bool &failed, QString &message);
};

template <QString Project::*field, void (*rule)(QString &, bool &, QString &)>
void Validate(Project &project, bool &failed, QString &message)
{
    rule(project.*field, failed, message);
}

void ValidateQuestions(Project &project, bool &failed, QString &message)
{
    ValidateQuestionCount(project.source.QuestionCount(), failed, message);
}

constexpr ReviewRule reviewRules[] = {
    {1, "invalid-form-name"_L1, "form name"_L1, Validate<&Project::FormName, ValidateAppName>},
    {1, "invalid-form-version"_L1, "form version"_L1,
     Validate<&Project::FormVersion, ValidateAppVersion>},
    {1, "invalid-description"_L1, "description"_L1,
     Validate<&Project::Description, ValidateAppDesc>},
    {2, "invalid-question-count"_L1, "questions"_L1, ValidateQuestions},
    {3, "invalid-data-folder"_L1, "data folder"_L1, Validate<&Project::FormPath, ValidateAppDir>},
};

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
        rule.validate(project, result.stepFailed[static_cast<size_t>(rule.step - 1)], message);
        if (!message.isEmpty())
            result.entries.push_back({rule.step, rule.code, rule.field, message});
    }
    return result;
}

StepVerdict CheckStep(int step, Project &project)
{
    StepVerdict verdict;
    QStringList messages;
    for (const ReviewRule &rule : reviewRules) {
        if (rule.step != step)
            continue;
        QString message;
        rule.validate(project, verdict.failed, message);
        messages += message;
    }
    verdict.text = messages.join(u'\n');
    return verdict;
}

EntryTarget TargetOfEntry(QStringView listText)
{
    const QStringView key = TrimBlanks(listText).left(5);
    if (key == "Step1"_L1)
        return {1, listText.contains("Version"_L1) ? "txtAppVersion"_L1 : "txtAppName"_L1};
    if (key == "Step2"_L1)
        return {2, {}};
    if (key == "Step3"_L1)
        return {3, "txt3_appDir"_L1};
    return {};
}

} // namespace vellumo
