// 10,000 moves through the wizard's steps, side by side with a second statement of its rules.

#include "editing/title_history.h"
#include "editing/wizard_rules.h"
#include "property/random_projects.h"
#include "property/rules_again.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class WizardWalk
{
public:
    WizardWalk() { m_source.GetDataMember(); }

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
    WizardWalk walk;
    for (int i = 0; i < operations; ++i) {
        walk.Step();
        ASSERT_FALSE(testing::Test::HasFailure()) << "operation " << i;
        const auto &recent = walk.RecentTitles();
        ASSERT_EQ(walk.Titles(), QStringList(recent.begin(), recent.end())) << "operation " << i;
    }
    EXPECT_GT(walk.Finished(), operations / 100);
}
