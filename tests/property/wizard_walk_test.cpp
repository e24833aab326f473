// 10,000 moves through the wizard's steps, and as many questions held against the rules of the
// property dialog, side by side with a second statement of the rules.

#include "editing/property_rules.h"
#include "editing/title_history.h"
#include "editing/wizard_rules.h"
#include "property/random_projects.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr int operations = 10000;

bool OwnsItems(const QString &type)
{
    return type == "Pulldown List"_L1 || type == "Checkboxes"_L1;
}

bool HasLineBreak(const QString &text)
{
    return text.count(u'\r') + text.count(u'\n') > 0;
}

/// A message and whether it applies.
struct Case {
    bool applies;
    const char *message;
};

QString First(std::initializer_list<Case> cases)
{
    for (const auto &[applies, message] : cases)
        if (applies)
            return QString::fromLatin1(message);
    return {};
}

QString All(std::initializer_list<Case> cases)
{
    QString messages;
    for (const auto &[applies, message] : cases)
        if (applies)
            messages += QString::fromLatin1(message);
    return messages;
}

using Columns = std::vector<QString>;

/// What a step must say to Next; the texts are trimmed already.
QString ExpectedAtNext(int step, const Question &entered, const Columns &columns)
{
    const QString &title = entered.title, &column = entered.columnName, &text = entered.question;
    switch (step) {
    case 1:
        return First({{entered.type == u""_s, "Please select an item."}});
    case 2:
        return First(
            {{title.size() >= 21, "Please keep the title length to 20 characters or less."},
             {title.count(u'"') > 0, "Double quotes are not allowed."}});
    case 3:
        return First({{column == u""_s, "Please enter a column name."},
                      {column.size() >= 256,
                       "Please keep the column name length to 255 characters or less."},
                      {column.count(u'"') > 0, "Double quotes are not allowed."},
                      {std::ranges::count(columns, column) > 0,
                       "The column name already exists. Please enter a different name."}});
    default:
        return First(
            {{HasLineBreak(text), "Carriage returns are not allowed in a question."},
             {text == u""_s, "Please enter a question."},
             {text.size() >= 256, "Please keep the question length to 255 characters or less."}});
    }
}

QString ExpectedAtFinish(int step, const Question &entered)
{
    const auto count = entered.items.size();
    if (step == 5)
        return First({{count == 0, "Please enter at least one item"},
                      {entered.type == "Pulldown List"_L1 && count >= 256,
                       "Please keep the list to 255 items or less."},
                      {entered.type == "Checkboxes"_L1 && count >= 33,
                       "Please keep the Check Box to 32 items or less."}});
    const QString atNext = ExpectedAtNext(4, entered, {});
    return atNext == "Please enter a question."_L1 ? atNext.chopped(1) : atNext;
}

QString ExpectedInDialog(const Question &edited, const Columns &others)
{
    const auto count = edited.items.size();
    const bool owns = OwnsItems(edited.type), isBoxes = edited.type == "Checkboxes"_L1;
    return All({
        {edited.title.size() > 20, "Please keep the title length to 20 characters or less.\n"},
        {edited.question.size() == 0, "Please enter a question.\n"},
        {HasLineBreak(edited.question), "Carriage returns are not allowed in a question.\n"},
        {edited.question.size() > 255,
         "Please keep the question length to 255 characters or less.\n"},
        {edited.columnName.size() == 0, "Please enter a column name.\n"},
        {edited.columnName.size() > 255,
         "Please keep the column name length to 255 characters or less.\n"},
        {edited.title.count(u'"') + edited.columnName.count(u'"') > 0,
         "Double quotes are not allowed in Title and Column Name."},
        {std::ranges::count(others, edited.columnName) > 0,
         "The column name already exists. Please enter a different name.\n"},
        {owns && count == 0, "Please enter at least one item."},
        {owns && !isBoxes && count > 255, "Please keep the list to 255 items or less."},
        {isBoxes && count > 32, "Please keep the Check Box to 32 items or less."},
    });
}

QString RandomLong(Random &random, int limit)
{
    QString text;
    for (int length = RandomLength(random, limit); text.size() < length;)
        text += RandomText(random, 9, random.OnceIn(60) ? Letters::Awkward : Letters::Plain);
    text.truncate(limit + 1);
    return random.OnceIn(3) ? text : Trimmed(text);
}

Question RandomQuestion(Random &random)
{
    Question question = {.title = RandomLong(random, 20),
                         .question = RandomLong(random, 255),
                         .type = random.OnceIn(20) ? QString() : RandomType(random, Letters::Plain),
                         .columnName = random.OnceIn(2) ? RandomText(random, 1, Letters::Plain)
                                                        : RandomLong(random, 255)};
    for (int i = random.OneOf(std::array{0, 1, 31, 32, 33, 255, 256}); i > 0; --i)
        question.items += QString::number(i);
    return question;
}

class Walk
{
public:
    Walk() { m_source.GetDataMember(); }

    void Step()
    {
        ExpectButtons();
        switch (m_random.Below(8)) {
        case 0:
            if (m_step > 1)
                --m_step;
            return;
        case 1:
            m_entered = RandomQuestion(m_random);
            return;
        case 2:
            return m_step < 4 ? Next() : Finish();
        default:
            return m_step == 5 || (m_step == 4 && !OwnsItems(m_entered.type)) ? Finish() : Next();
        }
    }

    int Finished() const { return m_finished; }
    const QStringList &Titles() const { return m_titles; }
    const std::vector<QString> &RecentTitles() const { return m_recentTitles; }

private:
    void ExpectButtons() const
    {
        const StepButtons buttons = ButtonsOf(m_step, m_entered.type);
        const bool owns = OwnsItems(m_entered.type);
        ASSERT_EQ(buttons.next, m_step < 4 || (m_step == 4 && owns)) << m_step;
        ASSERT_EQ(buttons.finish, m_step == 5 || (m_step == 4 && !owns)) << m_step;
        ASSERT_TRUE(!buttons.back || *buttons.back == (m_step > 1)) << m_step;
    }

    void Next()
    {
        Question expected = m_entered;
        if (m_step == 3)
            expected.columnName = Trimmed(expected.columnName);
        if (m_step == 4)
            expected.question = Trimmed(expected.question);
        const QString objection = ExpectedAtNext(m_step, expected, m_columns);
        ASSERT_EQ(ObjectionToNext(m_step, m_entered, m_source), objection) << m_step;
        ASSERT_EQ(m_entered.columnName, expected.columnName);
        ASSERT_EQ(m_entered.question, expected.question);
        if (objection.isEmpty())
            ++m_step;
    }

    void Finish()
    {
        if (m_step == 4)
            m_entered.question = Trimmed(m_entered.question);
        const QString objection = ExpectedAtFinish(m_step, m_entered);
        ASSERT_EQ(ObjectionToFinish(m_step, m_entered), objection) << m_step;
        if (!objection.isEmpty())
            return;
        ASSERT_EQ(ProposedColumnName(m_source), u"Question_%1"_s.arg(m_columns.size() + 1));
        AppendQuestion(m_source, m_entered);
        m_columns.push_back(m_entered.columnName);
        Remember();
        ++m_finished;
        m_step = 1;
        m_entered = RandomQuestion(m_random);
        if (m_columns.size() == 128)
            BeginAnew();
    }

    void Remember()
    {
        if (std::ranges::count(m_recentTitles, m_entered.title) == 0)
            m_recentTitles.push_back(m_entered.title);
        if (m_recentTitles.size() > 10)
            m_recentTitles.erase(m_recentTitles.begin());
        if (m_random.OnceIn(3)) // the wizard was opened again
            m_offered = m_titles;
        RememberTitle(m_entered.title, m_titles, m_offered);
    }

    void BeginAnew()
    {
        m_source.ClearQuestions();
        m_source.ClearItems();
        m_columns.clear();
    }

    Random m_random;
    clsDataSource m_source;
    Columns m_columns;
    int m_step = 1;
    Question m_entered = RandomQuestion(m_random);
    QStringList m_titles = {QString()}, m_offered = m_titles;
    std::vector<QString> m_recentTitles = {QString()};
    int m_finished = 0;
};

} // namespace

TEST(WizardWalk, AgreesWithTheRulesStatedAgain)
{
    Walk walk;
    for (int i = 0; i < operations; ++i) {
        walk.Step();
        ASSERT_FALSE(testing::Test::HasFailure()) << "operation " << i;
        const auto &recent = walk.RecentTitles();
        ASSERT_EQ(walk.Titles(), QStringList(recent.begin(), recent.end())) << "operation " << i;
    }
    EXPECT_GT(walk.Finished(), operations / 100);
}

TEST(PropertyDialog, AgreesWithTheRulesStatedAgain)
{
    Random random;
    int fine = 0;
    for (int i = 0; i < operations; ++i) {
        clsDataSource source;
        source.GetDataMember();
        Columns columns;
        for (int count = random.Between(1, 5); count > 0; --count) {
            source.Questions().Append({.ColumnName = RandomText(random, 1, Letters::Plain)});
            columns.push_back(source.Questions().Current().ColumnName);
        }
        const int current = random.Below(std::ssize(columns));
        source.SetPosition(current);
        columns.erase(columns.begin() + current);

        Question edited = RandomQuestion(random);
        const Question typed = edited;
        TrimEdited(edited);
        ASSERT_EQ(edited.title, Trimmed(typed.title));
        ASSERT_EQ(edited.question, Trimmed(typed.question));
        ASSERT_EQ(edited.columnName, typed.columnName);
        const QString expected = ExpectedInDialog(edited, columns);
        ASSERT_EQ(ObjectionsTo(edited, source), expected) << i;
        ASSERT_EQ(source.GetPosition(), current);
        fine += expected.isEmpty() ? 1 : 0;
    }
    EXPECT_GT(fine, operations / 100);
}
