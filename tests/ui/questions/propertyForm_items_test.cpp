#include "ui/questions/property_form_fixture.h"

#include <QAbstractItemView>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

using PropertyFormItems = PropertyFormTest;

const QString deleteAll = u"Are you sure you want to delete all the items?"_s;

QStringList Numbered(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += u"Item %1"_s.arg(i);
    return items;
}

TEST_F(PropertyFormItems, RunsQuotesAndNoItemsTogether)
{
    Open();
    Enter("txtColumnName", u"a\"b"_s);
    {
        const PromptScript prompts({u"Yes"_s});
        Click("cmd_Clear");
        EXPECT_EQ(prompts.texts(), QStringList{deleteAll});
    }
    EXPECT_EQ(Objections(), u"Double quotes are not allowed in Title and Column Name."
                            u"Please enter at least one item."_s);
    EXPECT_EQ(StoredItems().size(), 3);
}

TEST_F(PropertyFormItems, HidesTheListForOtherTypes)
{
    Open();
    const char *const controls[] = {"lblSelections", "lstSelection", "cmdNew",   "cmdDelete",
                                    "cmdUp",         "cmdDown",      "cmd_sort", "cmd_Clear"};
    const struct {
        QString type;
        bool list, names;
    } rows[] = {{u"Notes"_s, false, false},
                {u"Checkboxes"_s, true, false},
                {u"Yes/No"_s, false, false},
                {pulldown, true, true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.type.toStdString());
        PickType(row.type);
        for (const char *name : controls)
            EXPECT_EQ(The<QWidget>(name)->isVisible(), row.list) << name;
        EXPECT_EQ(The<QWidget>("cmd_AddState")->isVisible(), row.names);
        EXPECT_EQ(The<QWidget>("cmd_AddCountry")->isVisible(), row.names);
        EXPECT_EQ(ShownItems().size(), row.list ? 3 : 0);
    }
}

TEST_F(PropertyFormItems, ShowsTheStoredItemsAgainWhenATypeIsPicked)
{
    Open();
    const PromptScript prompts({u"Yes"_s});
    Click("cmd_Clear");
    EXPECT_EQ(prompts.texts(), QStringList{deleteAll});
    ASSERT_EQ(ShownItems(), QStringList());
    auto *types = The<QComboBox>("cboType");
    types->setFocus();
    types->showPopup();
    QTest::keyClick(types->view(), Qt::Key_Return); // the same type
    EXPECT_EQ(ShownItems(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(PropertyFormItems, DropsTheItemsWithTheType)
{
    Open();
    PickType(u"Text"_s);
    ExpectAccepted();
    EXPECT_EQ(Row().Type, u"Text"_s);
    EXPECT_EQ(StoredItems(), QStringList());
    EXPECT_EQ(document.source().Items().Count(), 1) << "the other question's";
}

TEST_F(PropertyFormItems, RefusesMoreBoxesThanThereMayBe)
{
    Append({.Order = 3, .Question = u"?"_s, .Type = pulldown, .ColumnName = u"c"_s, .Id = 9},
           Numbered(40));
    Open();
    PickType(u"Checkboxes"_s);
    EXPECT_EQ(ShownItems(), Numbered(40));
    EXPECT_EQ(Objections(), u"Please keep the Check Box to 32 items or less."_s);
}

TEST_F(PropertyFormItems, StopsAskingForItemsAt255)
{
    Append({.Order = 3, .Question = u"?"_s, .Type = u"Checkboxes"_s, .ColumnName = u"c"_s, .Id = 9},
           Numbered(254));
    Open();
    const PromptScript prompts({u"more"_s, u"OK"_s});
    Click("cmdNew");
    Click("cmdNew");
    EXPECT_EQ(prompts.questions(), QStringList{u"Please add the item to the List."_s});
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].text, u"Please keep the list to 255 items or less."_s);
    EXPECT_EQ(ShownItems().size(), 255);
}

TEST_F(PropertyFormItems, SortsUpwardsFirstEachTimeItOpens)
{
    for (int i = 0; i < 2; ++i) {
        Open();
        Click("cmd_sort");
        EXPECT_EQ(ShownItems(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
        PickType(u"Checkboxes"_s);
        Click("cmd_sort");
        EXPECT_EQ(ShownItems(), (QStringList{u"c"_s, u"b"_s, u"a"_s}))
            << "a new type keeps the turn";
    }
}

} // namespace
