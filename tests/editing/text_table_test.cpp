#include "editing/text_table.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

using Rows = QList<QStringList>;

TEST(TextTable, IsReadAsSpreadsheetsWriteIt)
{
    const struct {
        const char *what;
        QString text;
        Rows rows;
    } rows[] = {
        {"nothing", u""_s, {}},
        {"a cell", u"a"_s, {{u"a"_s}}},
        {"cells and rows", u"a\tb\nc\td\n"_s, {{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}}},
        {"other line ends", u"a\r\nb\rc"_s, {{u"a"_s}, {u"b"_s}, {u"c"_s}}},
        {"empty cells", u"\t\na\t"_s, {{u""_s, u""_s}, {u"a"_s, u""_s}}},
        {"an empty row", u"a\n\nb"_s, {{u"a"_s}, {u""_s}, {u"b"_s}}},
        {"what ends a cell, in one", u"\"a\tb\r\nc\"\td"_s, {{u"a\tb\r\nc"_s, u"d"_s}}},
        {"doubled marks", u"\"say \"\"so\"\"\"\n"_s, {{u"say \"so\""_s}}},
        {"marks alone", u"\"\"\t\"\"\"\""_s, {{u""_s, u"\""_s}}},
        {"a mark within", u"5\" wide"_s, {{u"5\" wide"_s}}},
        {"marks around a part", u"\"So\" he said\tb"_s, {{u"\"So\" he said"_s, u"b"_s}}},
        {"a mark without its partner", u"\"a\tb\nc"_s, {{u"\"a"_s, u"b"_s}, {u"c"_s}}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(ReadTable(row.text), row.rows) << row.what;
}

TEST(TextTable, ComesBackAsItWasWritten)
{
    const Rows rows = {{u"a"_s, u"\"b\""_s, u""_s}, {u"c\td"_s, u"e\nf"_s, u"\r"_s}, {u"|"_s}};
    EXPECT_EQ(WriteTable(rows), u"a\t\"\"\"b\"\"\"\t\n\"c\td\"\t\"e\nf\"\t\"\r\"\n|\n"_s);
    EXPECT_EQ(ReadTable(WriteTable(rows)), rows);
}

} // namespace
