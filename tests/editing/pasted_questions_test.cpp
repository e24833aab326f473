#include "editing/pasted_questions.h"

#include "editing/copied_questions.h"
#include "editing/question_sources.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

CopiedQuestion Copied(const QString &columnName)
{
    return {
        .row = 1,
        .question = {
            .title = u"T"_s, .question = u"What?"_s, .type = u"Text"_s, .columnName = columnName}};
}

TEST(PastedQuestions, AreAppendedUnderFreshIdsAndFreeNames)
{
    clsDataSource source = SourceWith(2);
    Question list = CurrentQuestion(source);
    list.question = u"  Which? "_s;
    EXPECT_EQ(PasteQuestions(
                  source,
                  {{.row = 1, .question = list}, {.row = 2, .question = list}, Copied(u" new "_s)}),
              QString());
    EXPECT_EQ(ColumnNames(source),
              (QStringList{u"q1"_s, u"q2"_s, u"q1(1)"_s, u"q1(2)"_s, u"new"_s}));
    ExpectOrderWithoutGaps(source);
    const auto &rows = source.Questions().Rows();
    EXPECT_EQ(rows[2].Id, 3);
    EXPECT_EQ(rows[2].Question, u"Which?"_s);
    EXPECT_EQ(ItemsOf(source, 3), (QStringList{u"1 a"_s, u"1 b"_s}));
    EXPECT_EQ(ItemsOf(source, 4), (QStringList{u"1 a"_s, u"1 b"_s}));
    EXPECT_EQ(Current(source).ColumnName, u"new"_s);
}

TEST(PastedQuestions, KeepTheRulesOfTheWizard)
{
    const struct {
        const char *what;
        Question question;
        QString reason;
    } rows[] = {
        {"no type", {u""_s, u"Q"_s, u""_s, u"c"_s}, u"Type: Please select an item."_s},
        {"a foreign type",
         {u""_s, u"Q"_s, u"Rating"_s, u"c"_s},
         u"Type: There is no question type of this name."_s},
        {"a long title",
         {QString(21, u't'), u"Q"_s, u"Text"_s, u"c"_s},
         u"Title: Please keep the title length to 20 characters or less."_s},
        {"a quotation mark",
         {u"\""_s, u"Q"_s, u"Text"_s, u"c"_s},
         u"Title: Double quotes are not allowed."_s},
        {"no column name",
         {u""_s, u"Q"_s, u"Text"_s, u" "_s},
         u"Column Name: Please enter a column name."_s},
        {"no room for another name",
         {u""_s, u"Q"_s, u"Text"_s, QString(253, u'n')},
         u"Column Name: Column Name is too long to copy"_s},
        {"a line break",
         {u""_s, u"Q\nR"_s, u"Text"_s, u"c"_s},
         u"Question: Carriage returns are not allowed in a question."_s},
        {"no question",
         {u""_s, u" "_s, u"Text"_s, u"c"_s},
         u"Question: Please enter a question."_s},
        {"no items",
         {u""_s, u"Q"_s, u"Checkboxes"_s, u"c"_s},
         u"Items: Please enter at least one item"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        clsDataSource source = SourceWith(1);
        Current(source).ColumnName = QString(253, u'n');
        EXPECT_EQ(PasteQuestions(source, {{.row = 4, .question = row.question}, Copied(u"ok"_s)}),
                  u"Not added:\nRow 4, "_s + row.reason);
        EXPECT_EQ(ColumnNames(source).sliced(1), QStringList{u"ok"_s}) << "the others are";
    }
}

TEST(PastedQuestions, HaveNoBreaksOfLinesWhereABoxTakesNone)
{
    clsDataSource source = SourceWith(0);
    const Question broken = {.title = u"A\nB"_s,
                             .question = u"Which?"_s,
                             .type = u"Pulldown List"_s,
                             .columnName = u"c\r\nd\n"_s,
                             .items = {u"e\nf"_s, u"g\n"_s}};
    EXPECT_EQ(PasteQuestions(source, {{.row = 1, .question = broken}}), QString());
    EXPECT_EQ(Current(source).Title, u"A B"_s);
    EXPECT_EQ(Current(source).ColumnName, u"c d"_s);
    EXPECT_EQ(ItemsOf(source, Current(source).Id), (QStringList{u"e f"_s, u"g"_s}));
}

TEST(PastedQuestions, TellTenRefusalsAndTheNumber)
{
    clsDataSource source = SourceWith(1);
    QList<CopiedQuestion> questions(12, CopiedQuestion{.row = 7, .itemsObjection = u"No."_s});
    const QString text = PasteQuestions(source, questions);
    EXPECT_EQ(text.count(u"Row 7, Items: No."_s), 10);
    EXPECT_TRUE(text.endsWith(u"\nand 2 more."_s));
}

TEST(PastedQuestions, AreAddedAllOrNoneWhereThePlacesEnd)
{
    clsDataSource source = SourceWith(126);
    const auto some = [](int count) {
        QList<CopiedQuestion> questions;
        for (int i = 0; i < count; ++i)
            questions += Copied(u"c"_s);
        return questions;
    };
    const QString three = PasteQuestions(source, some(3));
    EXPECT_EQ(three, u"There are 2 places left for questions, and the clipboard has more. "
                     "Nothing was added."_s);
    EXPECT_EQ(source.QuestionCount(), 126);
    EXPECT_EQ(source.MaxId(), 127);
    EXPECT_EQ(source.GetPosition(), 0);
    EXPECT_EQ(PasteQuestions(source, some(1)), QString());
    EXPECT_TRUE(PasteQuestions(source, some(2)).startsWith(u"There is 1 place left"_s));
    EXPECT_EQ(PasteQuestions(source, some(1)), QString());
    EXPECT_EQ(source.QuestionCount(), 128);
    EXPECT_TRUE(PasteQuestions(source, some(1)).startsWith(u"There are 0 places left"_s));
    EXPECT_EQ(source.QuestionCount(), 128);
}

} // namespace
