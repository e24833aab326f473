// The review against a second statement of its rules, made of patterns.

#include "property/random_projects.h"
#include "support/print.h"
#include "validation/project_review.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr int reviewRounds = 4000;

/// What a text must match, over all of its lines, and what is said where it does not; the first
/// that does not match counts.
struct Demand {
    const char *pattern;
    const char *message;
};

using Demands = std::initializer_list<Demand>;

constexpr Demands ofName = {
    {".+", "Please enter a name for your Vellsheet."},
    {".{0,24}", "Please keep the Vellsheet name under 24 characters in length."},
    {R"([^"\\/:*?<>|]*)", R"("\/:*?<>|are not allowed for file name)"},
    {"[^ ]*", "Spaces in the Vellsheet name are not allowed."}};
constexpr Demands ofVersion = {
    {".{0,32}", "Please keep your Vellsheet Version under 32 characters in length."},
    {"[^ ]*", "Spaces in the Vellsheet Version are not allowed."},
    {"[^\"]*", "Double Quotes in the Vellsheet Version are not allowed."}};
constexpr Demands ofDescription = {
    {".{0,200}", "Please keep your Vellsheet description under 200 characters in length."},
    {R"([^\r\n]*)", "Carriage returns are not allowed in description."}};
constexpr Demands ofFolder = {
    {".+", "Please provide a default data directory path."},
    {R"([A-Za-z]:\\[^":?>*/|<]*)", "This is not a valid directory name."}};

QString MessageFor(const QString &text, Demands demands)
{
    for (const Demand &demand : demands) {
        const QRegularExpression all(u"\\A(?:%1)\\z"_s.arg(QLatin1StringView(demand.pattern)),
                                     QRegularExpression::DotMatchesEverythingOption);
        if (!all.match(Trimmed(text)).hasMatch())
            return QString::fromLatin1(demand.message);
    }
    return {};
}

QString MessageForCount(qsizetype count)
{
    return count == 0    ? u"Your Vellsheet requires a minimum of one question."_s
           : count > 128 ? u"The maximum number of questions is 128."_s
                         : QString();
}

/// "Step1: ..." for each that must be told, in order.
QStringList ExpectedEntries(const Project &project)
{
    const std::array<std::pair<int, QString>, 5> all = {{
        {1, MessageFor(project.FormName, ofName)},
        {1, MessageFor(project.FormVersion, ofVersion)},
        {1, MessageFor(project.Description, ofDescription)},
        {2, MessageForCount(project.source.QuestionCount())},
        {3, MessageFor(project.FormPath, ofFolder)},
    }};
    QStringList entries;
    for (const auto &[step, message] : all)
        if (!message.isEmpty())
            entries += u"Step%1\t\t%2"_s.arg(step).arg(message);
    return entries;
}

/// Sound for the most part, and of a length around the limit.
QString RandomFieldText(Random &random, int limit)
{
    QString text = RandomText(random, 0, Letters::Plain);
    for (int length = RandomLength(random, limit); text.size() < length;)
        text += RandomText(random, 3, random.OnceIn(30) ? Letters::Awkward : Letters::Plain);
    if (!random.OnceIn(4))
        text.replace(u' ', u'_');
    if (random.OnceIn(3))
        text = u"  "_s + text + u' ';
    return text;
}

QString RandomFolder(Random &random)
{
    const QString start = random.OneOf(std::array{u"C:\\"_s, u"z:\\"_s, u"C:"_s, u"1:\\"_s,
                                                  u"\\\\"_s, u""_s, u"\":\\"_s, u"é:\\"_s});
    return start + (random.OnceIn(3) ? QString() : RandomFieldText(random, 10));
}

Project RandomReviewed(Random &random)
{
    Project project = {.FormName = RandomFieldText(random, 24),
                       .FormVersion = RandomFieldText(random, 32),
                       .Description = RandomFieldText(random, 200),
                       .FormPath = RandomFolder(random)};
    for (int i = random.OneOf(std::array{0, 1, 2, 127, 128, 129}); i > 0; --i)
        project.source.Questions().Append({});
    return project;
}

} // namespace

TEST(Review, SaysWhatTheRulesDemand)
{
    Random random;
    int passed = 0;
    for (int round = 0; round < reviewRounds; ++round) {
        SCOPED_TRACE(round);
        Project project = RandomReviewed(random);
        const QStringList expected = ExpectedEntries(project);
        QStringList trimmed;
        for (const auto &field : formFields)
            trimmed += Trimmed(project.*field.text);

        const ReviewResult result = ReviewProject(project);
        QStringList entries;
        for (const ReviewEntry &entry : result.entries)
            entries += ListText(entry);
        ASSERT_EQ(entries, expected);
        ASSERT_EQ(result.Passed(), expected.isEmpty());
        for (int step = 1; step <= 3; ++step)
            ASSERT_EQ(result.stepFailed[static_cast<size_t>(step - 1)],
                      !expected.filter(u"Step%1"_s.arg(step)).isEmpty());
        QStringList left;
        for (const auto &field : formFields)
            left += project.*field.text;
        ASSERT_EQ(left, trimmed);
        passed += result.Passed() ? 1 : 0;
    }
    EXPECT_GT(passed, reviewRounds / 100) << "too few sound ones to mean anything";
}
