#include "exchange/csv.h"

#include "exchange/csv_text.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The rows as "number: cell|cell".
QStringList Rows(const QByteArray &text, char separator = ',')
{
    const Result<QList<CsvRow>> rows = ReadCsv(text, separator);
    if (!rows)
        return {Describe(rows.error())};
    QStringList told;
    for (const CsvRow &row : *rows)
        told += QString::number(row.number) + u": "_s + row.cells.join(u'|');
    return told;
}

struct Reading {
    const char *text;
    QStringList rows;
};

} // namespace

TEST(Csv, IsReadByTheRulesOfRfc4180)
{
    const Reading readings[] = {
        {"", {}},
        {"a", {u"1: a"_s}},
        {"a,b\r\nc,d\r\n", {u"1: a|b"_s, u"2: c|d"_s}},
        {"a,b\rc,d\r", {u"1: a|b"_s, u"2: c|d"_s}},
        {"a,b\nc,d", {u"1: a|b"_s, u"2: c|d"_s}},
        {" a , b ", {u"1:  a | b "_s}},
        {"\"a,b\",\"c\"", {u"1: a,b|c"_s}},
        {"\"a \"\"b\"\"\",c", {u"1: a \"b\"|c"_s}},
        {"\"a\r\nb\",c\r\nd", {u"1: a\r\nb|c"_s, u"2: d"_s}},
        {"\"a\",\"\"", {u"1: a|"_s}},
        {"a\r\n\r\n\r\nb", {u"1: a"_s, u"4: b"_s}},
        {"a\n,,\n\n\rb", {u"1: a"_s, u"5: b"_s}},
        {"\xC3\xA4,\xE2\x82\xAC", {u"1: ä|€"_s}},
    };
    for (const auto &[text, rows] : readings)
        EXPECT_EQ(Rows(text), rows) << text;
}

TEST(Csv, HasOtherSeparators)
{
    EXPECT_EQ(Rows("a;\"b;c\";d,e", ';'), (QStringList{u"1: a|b;c|d,e"_s}));
    EXPECT_EQ(Rows("a\tb \t\"c\td\"", '\t'), (QStringList{u"1: a|b |c\td"_s}));
}

TEST(Csv, RefusesQuotationMarksThatMakeNoCell)
{
    EXPECT_EQ(Rows("a\nb,\"c"), QStringList{u"Row 2 has a quotation mark without its partner."_s});
    EXPECT_EQ(Rows("a\nb,c\"d\n"), QStringList{u":2: A quotation mark stands where none can."_s});
    EXPECT_EQ(Rows("a\n\nb,\"c\"d\n"),
              QStringList{u":3: A quotation mark stands where none can."_s});
    EXPECT_EQ(Rows("\""), QStringList{u"Row 1 has a quotation mark without its partner."_s});
}

TEST(Csv, RefusesMoreCellsThanAnySheetHas)
{
    EXPECT_EQ(Rows("x" + QByteArray(999'999, ',')).size(), 1);
    EXPECT_EQ(Rows("x" + QByteArray(1'000'000, ',')),
              QStringList{u"The table has more than 1000000 cells."_s});
}

TEST(Csv, RefusesMoreRowsThanAnySheetHas)
{
    EXPECT_EQ(Rows(QByteArray("x\n\n").repeated(100'000)).size(), 100'000);
    EXPECT_EQ(Rows(QByteArray("x\n").repeated(100'001)),
              QStringList{u"The table has more than 100000 rows."_s});
}

TEST(Csv, IsWrittenWithQuotesWhereTheyAreNeeded)
{
    EXPECT_EQ(WriteCsv({{u"a"_s, u"b c"_s, u""_s},
                        {},
                        {u"a,b"_s, u"c;d"_s, u"e\tf"_s, u"\"g\""_s, u"h\ni"_s, u" j"_s, u"k "_s},
                        {u"ä€"_s}}),
              "a,b c,\r\n"
              "\r\n"
              "\"a,b\",\"c;d\",\"e\tf\",\"\"\"g\"\"\",\"h\ni\",\" j\",\"k \"\r\n"
              "\xC3\xA4\xE2\x82\xAC\r\n");
}

TEST(CsvText, IsUtf8WithOrWithoutAMark)
{
    EXPECT_EQ(*Utf8Text("\xEF\xBB\xBF"
                        "a\n\xC3\xA4"),
              "a\n\xC3\xA4");
    EXPECT_EQ(*Utf8Text("a"), "a");
    EXPECT_EQ(*Utf8Text(""), "");
    EXPECT_EQ(FromUtf8("\xEF\xBB\xBF"
                       "a"),
              u"\uFEFF"_s + u'a');
}

TEST(CsvText, RefusesEverythingElse)
{
    const QByteArray others[] = {"a\n\xE4", "a\nb\xC3", "a\n\xC0\x80", "a\n\xED\xA0\x80\n"};
    for (const QByteArray &bytes : others) {
        const Result<QByteArray> text = Utf8Text(bytes);
        ASSERT_FALSE(text) << bytes.toStdString();
        EXPECT_EQ(Describe(text.error()), u":2: The text is not in UTF-8."_s);
    }
    const Result<QByteArray> zero = Utf8Text(QByteArray("a\nb\0c", 5));
    ASSERT_FALSE(zero);
    EXPECT_EQ(Describe(zero.error()), u":2: There is a zero byte; the text must be in UTF-8."_s);
}
