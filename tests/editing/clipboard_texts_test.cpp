#include "editing/clipboard_texts.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(ClipboardTexts, ComeIntoOneLine)
{
    const struct {
        QString text, line;
    } rows[] = {
        {u"plain"_s, u"plain"_s},
        {u" blanks stay "_s, u" blanks stay "_s},
        {u"at the end\n"_s, u"at the end"_s},
        {u"at the end\r\n"_s, u"at the end"_s},
        {u"only one\n\n"_s, u"only one "_s},
        {u"a\nb\r\nc\rd"_s, u"a b c d"_s},
        {u"a\u2028b\u2029c\vd\fe"_s, u"a b c d e"_s},
        {u"a\tb"_s, u"a b"_s},
        {u"\n"_s, u""_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(OneLine(row.text), row.line);
}

TEST(ClipboardTexts, FallIntoLines)
{
    EXPECT_EQ(LinesOf(u""_s), QStringList());
    EXPECT_EQ(LinesOf(u" \t\n\r\n"_s), QStringList());
    EXPECT_EQ(LinesOf(u"  one \t\r\ntwo\n\n\tthree\rfour five"_s),
              (QStringList{u"one"_s, u"two"_s, u"three"_s, u"four five"_s}));
    EXPECT_EQ(LinesOf(u"tab\twithin"_s), QStringList{u"tab within"_s});
}

/// The row, the texts apart by '/', the items, and the objection.
QStringList Told(const QList<CopiedQuestion> &questions)
{
    QStringList told;
    for (const CopiedQuestion &one : questions)
        told += u"%1 %2/%3/%4/%5/%6 %7"_s.arg(one.row)
                    .arg(one.question.title, one.question.question, one.question.type,
                         one.question.columnName, one.question.items.join(u'+'), one.itemsObjection)
                    .trimmed();
    return told;
}

TEST(QuestionTable, IsReadWithAndWithoutAHeading)
{
    const QString list = u"2 T/Which?/Pulldown List/c/a+b"_s;
    const struct {
        const char *what;
        QString text;
        QStringList questions;
    } rows[] = {
        {"nothing", u""_s, {}},
        {"blank rows", u"\n \t\n"_s, {}},
        {"no heading", u"T\tWhat?\tText\tc\n"_s, {u"1 T/What?/Text/c/"_s}},
        {"in the order of the columns",
         u"Title\tQuestion\tType\tColumn Name\tItems\nT\tWhich?\tPulldown List\tc\ta|b\n"_s,
         {list}},
        {"in another order and case, with other columns",
         u"ITEMS\tnumber\tcolumn name\ttype\t question \ttitle\n"
         "a|b\t9\tc\tpulldown list\tWhich?\tT"_s,
         {list}},
        {"with columns that are left out",
         u"Type\tQuestion\nText\tWhat?"_s,
         {u"2 /What?/Text//"_s}},
        {"a heading alone", u"Title\tQuestion\tType"_s, {}},
        {"blank rows are counted", u"\nQuestion\tType\n\nWhat?\tText"_s, {u"4 /What?/Text//"_s}},
        {"a second heading is a question",
         u"Question\tType\nQuestion\tType"_s,
         {u"2 /Question/Type//"_s}},
        {"a text alone", u"Question"_s, {u"1 Question////"_s}},
        {"line breaks in a cell",
         u"\"a\nb\"\t\"a\nb\"\tText\t\"c\nd\n\"\t"_s,
         {u"1 a b/a\nb/Text/c d/"_s}},
        {"items", u"\tQ\tCheckboxes\tc\t a ||\tb\n"_s, {u"1 /Q/Checkboxes/c/a"_s}},
        {"items of no use", u"\tQ\tText\tc\ta|b"_s, {u"1 /Q/Text/c/"_s}},
        {"the same item twice",
         u"\tQ\tCheckboxes\tc\ta|a"_s,
         {u"1 /Q/Checkboxes/c/a The item already exists. Please enter a different name."_s}},
        {"a long item",
         u"\tQ\tCheckboxes\tc\ta|"_s + QString(33, u'b'),
         {u"1 /Q/Checkboxes/c/a Please keep the item length to 32 characters or less."_s}},
        {"a built-in name that is longer",
         u"\tQ\tPulldown List\tc\tSouth Georgia and the South Sandwich Islands"_s,
         {u"1 /Q/Pulldown List/c/South Georgia and the South Sandwich Islands"_s}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(Told(ReadQuestionTable(row.text)), row.questions) << row.what;
}

TEST(QuestionTable, IsWrittenWithAHeadingAndComesBack)
{
    const QList<Question> questions = {
        {u"T"_s, u"Which\tone?"_s, u"Checkboxes"_s, u"c"_s, {u"a"_s, u"b c"_s}},
        {u""_s, u"\"So\"?"_s, u"Text"_s, u"d"_s, {}}};
    const QString text = WriteQuestionTable(questions);
    EXPECT_EQ(text, u"Title\tQuestion\tType\tColumn Name\tItems\n"
                    "T\t\"Which\tone?\"\tCheckboxes\tc\ta|b c\n"
                    "\t\"\"\"So\"\"?\"\tText\td\t\n"_s);
    EXPECT_EQ(Told(ReadQuestionTable(text)),
              (QStringList{u"2 T/Which\tone?/Checkboxes/c/a+b c"_s, u"3 /\"So\"?/Text/d/"_s}));
}

} // namespace
