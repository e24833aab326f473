#include "editing/property_rules.h"

#include "model/clsDataSource.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString longTitle = u"Please keep the title length to 20 characters or less.\n"_s;
const QString noQuestion = u"Please enter a question.\n"_s;
const QString lineBreak = u"Carriage returns are not allowed in a question.\n"_s;
const QString longQuestion = u"Please keep the question length to 255 characters or less.\n"_s;
const QString noColumn = u"Please enter a column name.\n"_s;
const QString longColumn = u"Please keep the column name length to 255 characters or less.\n"_s;
const QString propertyQuotes = u"Double quotes are not allowed in Title and Column Name."_s;
const QString taken = u"The column name already exists. Please enter a different name.\n"_s;
const QString noItem = u"Please enter at least one item."_s;
const QString manyItems = u"Please keep the list to 255 items or less."_s;
const QString manyBoxes = u"Please keep the Check Box to 32 items or less."_s;

QStringList NumbersBelow(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += QString::number(i);
    return items;
}

/// Two questions, Age and Kind, of which the second is current; its Id is 7 and it has three items.
clsDataSource TwoQuestions()
{
    clsDataSource source;
    source.GetDataMember();
    source.Questions().Append({.Order = 1, .Type = u"Text"_s, .ColumnName = u"Age"_s, .Id = 3});
    source.Questions().Append({.Order = 2,
                               .Title = u"Kind"_s,
                               .Question = u"Which kind?"_s,
                               .Type = u"Pulldown List"_s,
                               .ColumnName = u"Kind"_s,
                               .Id = 7});
    for (const auto &[id, item] : {std::pair(7, u"a"_s), {3, u"stray"_s}, {7, u"b"_s}, {7, u"c"_s}})
        source.Items().Append({.Id = id, .Item = item});
    return source;
}

Question Faultless()
{
    return {.title = u"Kind"_s,
            .question = u"Which kind?"_s,
            .type = u"Pulldown List"_s,
            .columnName = u"Kind"_s,
            .items = {u"a"_s}};
}

/// The objections to a faultless question after a change.
template <typename Change> QString ObjectionsAfter(Change change)
{
    Question edited = Faultless();
    change(edited);
    return ObjectionsTo(edited, TwoQuestions());
}

TEST(PropertyRules, TrimTitleAndQuestionOfBlanksAlone)
{
    Question edited{.title = u"  a title "_s,
                    .question = u" \tWhat?\u00a0 "_s,
                    .columnName = u" Column "_s,
                    .items = {u" item "_s}};
    TrimEdited(edited);
    EXPECT_EQ(edited.title, u"a title"_s);
    EXPECT_EQ(edited.question, u"\tWhat?\u00a0"_s);
    EXPECT_EQ(edited.columnName, u" Column "_s);
    EXPECT_EQ(edited.items, QStringList{u" item "_s});
}

TEST(PropertyRules, ObjectOnBothSidesOfEachTextLimit)
{
    const struct {
        const char *what;
        QString title, question, columnName, objections;
    } rows[] = {
        {"nothing wrong", u"T"_s, u"Q"_s, u"C"_s, u""_s},
        {"no title", u""_s, u"Q"_s, u"C"_s, u""_s},
        {"title of 20", QString(20, u't'), u"Q"_s, u"C"_s, u""_s},
        {"title of 21", QString(21, u't'), u"Q"_s, u"C"_s, longTitle},
        {"no question", u"T"_s, u""_s, u"C"_s, noQuestion},
        {"line feed", u"T"_s, u"Q\nR"_s, u"C"_s, lineBreak},
        {"carriage return", u"T"_s, u"Q\rR"_s, u"C"_s, lineBreak},
        {"question of 255", u"T"_s, QString(255, u'q'), u"C"_s, u""_s},
        {"question of 256", u"T"_s, QString(256, u'q'), u"C"_s, longQuestion},
        {"quote in the question", u"T"_s, u"\"Q\""_s, u"C"_s, u""_s},
        {"no column name", u"T"_s, u"Q"_s, u""_s, noColumn},
        {"column name of 255", u"T"_s, u"Q"_s, QString(255, u'c'), u""_s},
        {"column name of 256", u"T"_s, u"Q"_s, QString(256, u'c'), longColumn},
        {"quote in the title", u"\""_s, u"Q"_s, u"C"_s, propertyQuotes},
        {"quote in the column name", u"T"_s, u"Q"_s, u"\""_s, propertyQuotes},
        {"quotes in both", u"\""_s, u"Q"_s, u"\""_s, propertyQuotes},
        {"title and question", QString(21, u't'), u""_s, u"C"_s, longTitle + noQuestion},
        {"long question with a break", u"T"_s, QString(256, u'\n'), u"C"_s,
         lineBreak + longQuestion},
        {"all of the column name", QString(21, u'"'), u"Q"_s, QString(256, u'"'),
         longTitle + longColumn + propertyQuotes},
        {"blanks are a column name", u"T"_s, u"Q"_s, u" "_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ObjectionsTo({.title = row.title,
                                .question = row.question,
                                .type = u"Text"_s,
                                .columnName = row.columnName},
                               TwoQuestions()),
                  row.objections);
    }
}

TEST(PropertyRules, ObjectToTheColumnNameOfAnotherQuestion)
{
    const auto named = [](const QString &name) {
        return ObjectionsAfter([name](Question &edited) { edited.columnName = name; });
    };
    EXPECT_EQ(named(u"Kind"_s), u""_s) << "its own";
    EXPECT_EQ(named(u"Age"_s), taken);
    EXPECT_EQ(named(u"age"_s), u""_s);
    EXPECT_EQ(named(u"Age "_s), u""_s);

    clsDataSource empty;
    empty.GetDataMember();
    EXPECT_EQ(ObjectionsTo(Faultless(), empty), u""_s);
}

TEST(PropertyRules, ObjectToTooFewAndTooManyItems)
{
    const struct {
        QString type;
        int items;
        QString objections;
    } rows[] = {
        {u"Pulldown List"_s, 0, noItem},
        {u"Pulldown List"_s, 1, u""_s},
        {u"Pulldown List"_s, 255, u""_s},
        {u"Pulldown List"_s, 256, manyItems},
        {u"Checkboxes"_s, 0, noItem},
        {u"Checkboxes"_s, 32, u""_s},
        {u"Checkboxes"_s, 33, manyBoxes},
        {u"Checkboxes"_s, 256, manyBoxes},
        {u"Text"_s, 0, u""_s},
        {u"Text"_s, 256, u""_s},
        {u"pulldown list"_s, 256, u""_s},
        {u"<b>x"_s, 0, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.type.toStdString() + ' ' + std::to_string(row.items));
        EXPECT_EQ(ObjectionsAfter([&row](Question &edited) {
                      edited.type = row.type;
                      edited.items = NumbersBelow(row.items);
                  }),
                  row.objections);
    }
}

TEST(PropertyRules, RunMessagesTogetherThatEndNoLine)
{
    EXPECT_EQ(ObjectionsAfter([](Question &edited) {
                  edited.columnName = u"a\"b"_s;
                  edited.items.clear();
              }),
              propertyQuotes + noItem);
    EXPECT_EQ(ObjectionsAfter([](Question &edited) {
                  edited.title = u"\""_s;
                  edited.columnName = u"Age"_s;
                  edited.items = NumbersBelow(256);
              }),
              propertyQuotes + taken + manyItems);
}

TEST(PropertyRules, ReplaceContentButNeitherPlaceNorIdentity)
{
    clsDataSource source = TwoQuestions();
    ReplaceCurrentQuestion(source, {.title = u"New"_s,
                                    .question = u"Which?"_s,
                                    .type = u"Checkboxes"_s,
                                    .columnName = u"new "_s,
                                    .items = {u"x"_s, u"a"_s}});
    const QuestionRow &row = source.Questions().Current();
    EXPECT_EQ(row.Order, 2);
    EXPECT_EQ(row.Id, 7);
    EXPECT_EQ(row.Title, u"New"_s);
    EXPECT_EQ(row.Question, u"Which?"_s);
    EXPECT_EQ(row.Type, u"Checkboxes"_s);
    EXPECT_EQ(row.ColumnName, u"new "_s);
    EXPECT_EQ(source.ItemsOf(7), (QStringList{u"x"_s, u"a"_s}));
    EXPECT_EQ(source.ItemsOf(3), QStringList{u"stray"_s});
    EXPECT_EQ(source.Items().Count(), 3) << "a filter stayed";
    EXPECT_EQ(source.QuestionCount(), 2);
}

TEST(PropertyRules, DropTheItemsOfAQuestionThatOwnsNone)
{
    for (const QString &type : {u"Text"_s, u"<b>x"_s, u"checkboxes"_s, u""_s}) {
        clsDataSource source = TwoQuestions();
        Question edited = Faultless();
        edited.type = type;
        ReplaceCurrentQuestion(source, edited);
        EXPECT_EQ(source.ItemsOf(7), QStringList());
        EXPECT_EQ(source.ItemsOf(3), QStringList{u"stray"_s});
    }
}

} // namespace
