// 10,000 edits of a question, held against a second statement of the property dialog's rules.

#include "editing/property_rules.h"
#include "property/random_projects.h"
#include "property/rules_again.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

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
