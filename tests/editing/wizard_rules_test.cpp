#include "editing/wizard_rules.h"

#include "model/question_types.h"
#include "support/print.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString text = u"Text"_s;
const QString pulldown = u"Pulldown List"_s;
const QString checkboxes = u"Checkboxes"_s;

const QString wizardQuotes = u"Double quotes are not allowed."_s;
const QString wizardLongTitle = u"Please keep the title length to 20 characters or less."_s;
const QString wizardNoColumn = u"Please enter a column name."_s;
const QString wizardLongColumn = u"Please keep the column name length to 255 characters or less."_s;
const QString columnExists = u"The column name already exists. Please enter a different name."_s;
const QString lineBreaks = u"Carriage returns are not allowed in a question."_s;
const QString wizardLongQuestion = u"Please keep the question length to 255 characters or less."_s;
const QString noItems = u"Please enter at least one item"_s;
const QString wizardManyItems = u"Please keep the list to 255 items or less."_s;
const QString wizardManyBoxes = u"Please keep the Check Box to 32 items or less."_s;

QString Letters(qsizetype count)
{
    return QString(count, u'a');
}

QStringList Items(qsizetype count)
{
    return QStringList(count, u"Item"_s);
}

clsDataSource SourceOfColumns(const QStringList &columnNames)
{
    clsDataSource source;
    source.GetDataMember();
    for (const QString &name : columnNames)
        AppendQuestion(source, {.type = text, .columnName = name});
    return source;
}

TEST(WizardRules, EnableTheButtonsOfAStep)
{
    const std::optional<bool> unchanged;
    const struct {
        int step;
        StepButtons plain, withItems;
    } rows[] = {
        {1, {false, true, false}, {false, true, false}},
        {2, {true, true, false}, {true, true, false}},
        {3, {true, true, false}, {true, true, false}},
        {4, {unchanged, false, true}, {unchanged, true, false}},
        {5, {true, false, true}, {true, false, true}},
    };
    for (const auto &row : rows)
        for (const auto &[id, type, kind, data, items] : questionTypes) {
            SCOPED_TRACE(row.step);
            SCOPED_TRACE(type.data());
            const bool owns = type == pulldown || type == checkboxes;
            EXPECT_EQ(ButtonsOf(row.step, QString(type)), owns ? row.withItems : row.plain);
        }
}

TEST(WizardRules, NextWantsAType)
{
    const clsDataSource source = SourceOfColumns({});
    Question none;
    EXPECT_EQ(ObjectionToNext(1, none, source), u"Please select an item."_s);
    Question some{.type = text};
    EXPECT_EQ(ObjectionToNext(1, some, source), QString());
}

TEST(WizardRules, NextChecksTheTitleAsItStands)
{
    const struct {
        const char *what;
        QString title, objection;
    } rows[] = {
        {"none is allowed", u""_s, u""_s},
        {"20 are inclusive", Letters(20), u""_s},
        {"one over", Letters(21), wizardLongTitle},
        {"blanks count", u" "_s + Letters(20), wizardLongTitle},
        {"a double quote", u"a\"b"_s, wizardQuotes},
        {"length is checked first", u"\""_s + Letters(20), wizardLongTitle},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Question entered{.title = row.title};
        EXPECT_EQ(ObjectionToNext(2, entered, SourceOfColumns({})), row.objection);
        EXPECT_EQ(entered.title, row.title);
    }
}

TEST(WizardRules, NextChecksTheTrimmedColumnName)
{
    const struct {
        const char *what;
        QString name, objection, stored;
    } rows[] = {
        {"free", u"Weight"_s, u""_s, u"Weight"_s},
        {"blanks go, also where it passes", u"  Weight "_s, u""_s, u"Weight"_s},
        {"a tab is no blank", u"\tWeight"_s, u""_s, u"\tWeight"_s},
        {"none", u""_s, wizardNoColumn, u""_s},
        {"blanks alone", u"   "_s, wizardNoColumn, u""_s},
        {"255 are inclusive", Letters(255), u""_s, Letters(255)},
        {"255 and blanks", u" "_s + Letters(255) + u" "_s, u""_s, Letters(255)},
        {"one over", Letters(256), wizardLongColumn, Letters(256)},
        {"a double quote", u"a\"b"_s, wizardQuotes, u"a\"b"_s},
        {"length is checked before quotes", u"\""_s + Letters(255), wizardLongColumn,
         u"\""_s + Letters(255)},
        {"taken", u"Age"_s, columnExists, u"Age"_s},
        {"taken once trimmed", u" Age "_s, columnExists, u"Age"_s},
        {"another case is free", u"AGE"_s, u""_s, u"AGE"_s},
        {"taken by the last", u"Size"_s, columnExists, u"Size"_s},
        {"length is checked before others'", Letters(300), wizardLongColumn, Letters(300)},
        {"quotes are checked before others'", u"q\""_s, wizardQuotes, u"q\""_s},
    };
    clsDataSource source = SourceOfColumns({u"Age"_s, u"q\""_s, Letters(300), u"Size"_s});
    source.MoveFirst();
    const auto position = source.GetPosition();
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Question entered{.columnName = row.name};
        EXPECT_EQ(ObjectionToNext(3, entered, source), row.objection);
        EXPECT_EQ(entered.columnName, row.stored);
        EXPECT_EQ(source.GetPosition(), position);
    }
    Question first{.columnName = u"Age"_s};
    EXPECT_EQ(ObjectionToNext(3, first, SourceOfColumns({})), QString()) << "no question yet";
}

TEST(WizardRules, NextAndFinishMissAQuestionInDifferentWords)
{
    const QString ofNext = u"Please enter a question."_s;
    const QString ofFinish = u"Please enter a question"_s;
    const struct {
        const char *what;
        QString question, next, finish, stored;
    } rows[] = {
        {"a question", u"Which?"_s, u""_s, u""_s, u"Which?"_s},
        {"blanks go", u"  Which bird? "_s, u""_s, u""_s, u"Which bird?"_s},
        {"none", u""_s, ofNext, ofFinish, u""_s},
        {"blanks alone", u"  "_s, ofNext, ofFinish, u""_s},
        {"255 are inclusive", Letters(255), u""_s, u""_s, Letters(255)},
        {"255 and blanks", u" "_s + Letters(255), u""_s, u""_s, Letters(255)},
        {"one over", Letters(256), wizardLongQuestion, wizardLongQuestion, Letters(256)},
        {"a line feed", u"a\nb"_s, lineBreaks, lineBreaks, u"a\nb"_s},
        {"a carriage return", u"a\rb"_s, lineBreaks, lineBreaks, u"a\rb"_s},
        {"a line feed is no blank", u" \n "_s, lineBreaks, lineBreaks, u"\n"_s},
        {"lines are checked before length", Letters(256) + u"\n"_s, lineBreaks, lineBreaks,
         Letters(256) + u"\n"_s},
        {"a double quote is allowed", u"\"a\""_s, u""_s, u""_s, u"\"a\""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Question leaving{.question = row.question};
        EXPECT_EQ(ObjectionToNext(4, leaving, SourceOfColumns({})), row.next);
        EXPECT_EQ(leaving.question, row.stored);
        Question finishing{.question = row.question};
        EXPECT_EQ(ObjectionToFinish(4, finishing), row.finish);
        EXPECT_EQ(finishing.question, row.stored);
    }
}

TEST(WizardRules, FinishCountsTheItems)
{
    const struct {
        const char *what;
        QString type;
        qsizetype items;
        QString objection;
    } rows[] = {
        {"an empty list", pulldown, 0, noItems},
        {"a list of one", pulldown, 1, u""_s},
        {"a list of 255", pulldown, 255, u""_s},
        {"a list of 256", pulldown, 256, wizardManyItems},
        {"no boxes", checkboxes, 0, noItems},
        {"32 boxes", checkboxes, 32, u""_s},
        {"33 boxes", checkboxes, 33, wizardManyBoxes},
        {"a list may be longer than boxes", pulldown, 33, u""_s},
        {"boxes are told as boxes", checkboxes, 256, wizardManyBoxes},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Question entered{.type = row.type, .items = Items(row.items)};
        EXPECT_EQ(ObjectionToFinish(5, entered), row.objection);
    }
}

TEST(WizardRules, ProposeAColumnNameByTheCount)
{
    EXPECT_EQ(ProposedColumnName(SourceOfColumns({})), u"Question_1"_s);
    EXPECT_EQ(ProposedColumnName(SourceOfColumns({u"a"_s, u"Question_4"_s, u"c"_s})),
              u"Question_4"_s)
        << "whether it is taken or not";
}

TEST(WizardRules, AppendAQuestionAfterTheOthers)
{
    clsDataSource source = SourceOfColumns({u"first"_s});
    source.SetMaxId(41);

    AppendQuestion(source, {.title = u" Bird "_s,
                            .question = u"Which?"_s,
                            .type = checkboxes,
                            .columnName = u"bird"_s,
                            .items = {u"Wren"_s, u"Tit"_s}});

    ASSERT_EQ(source.QuestionCount(), 2);
    const QuestionRow &row = source.Questions().Current();
    EXPECT_EQ(row.Order, 2);
    EXPECT_EQ(row.Type, checkboxes);
    EXPECT_EQ(row.Title, u" Bird "_s);
    EXPECT_EQ(row.Question, u"Which?"_s);
    EXPECT_EQ(row.ColumnName, u"bird"_s);
    EXPECT_EQ(row.Id, 41);
    EXPECT_EQ(source.MaxId(), 42);
    ASSERT_EQ(source.Items().Count(), 2);
    EXPECT_EQ(source.Items().Rows()[0].Id, 41);
    EXPECT_EQ(source.Items().Rows()[0].Item, u"Wren"_s);
    EXPECT_EQ(source.Items().Rows()[1].Item, u"Tit"_s);
}

TEST(WizardRules, AppendLosesNoItemsWhereTheNextIdIsInUse)
{
    clsDataSource source = SourceOfColumns({u"first"_s});
    source.SetMaxId(5); // as a file may have it
    source.AppendItems(5, {u"kept"_s});
    AppendQuestion(source, {.type = checkboxes, .columnName = u"bird"_s, .items = {u"Wren"_s}});
    EXPECT_EQ(source.ItemsOf(5), (QStringList{u"kept"_s, u"Wren"_s}));
}

TEST(WizardRules, AppendItemsOnlyWhereATypeHasThem)
{
    for (const auto &[id, type, kind, data, items] : questionTypes) {
        SCOPED_TRACE(type.data());
        clsDataSource source = SourceOfColumns({});
        AppendQuestion(source, {.type = type, .items = Items(3)});
        EXPECT_EQ(source.Items().Count(), type == pulldown || type == checkboxes ? 3 : 0);
    }
}

} // namespace
