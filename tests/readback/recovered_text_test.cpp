#include "readback/recovered_text.h"

#include "handheld/script_text.h"
#include "platform/code_page.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QByteArray Encoded(const QString &text)
{
    QByteArray bytes;
    EXPECT_EQ(AppendWindows1252(bytes, text), -1);
    return bytes;
}

struct Row {
    QByteArray delivered;
    QString text;
};

// They stand in every text that has escapes.
const Row everywhere[] = {
    {"", u""_s},
    {"Who found it?", u"Who found it?"_s},
    {"a\tb", u"a\tb"_s},
    {"two\nlines", uR"(two\nlines)"_s},
    {"\a\b\n\v\f\r\x1B\x1A", uR"(\a\b\n\v\f\r\e\z)"_s},
    {"C:\\new", uR"(C:\\new)"_s},
    {"\\", uR"(\\)"_s},
    {"\x01", uR"(\1)"_s},
    {"\x01\x38", uR"(\18)"_s},
    {"\x01\x37", uR"(\0017)"_s},
    {"\x1F\x30", uR"(\0370)"_s},
    {" in front", uR"(\40in front)"_s},
    {"7 ", uR"(7\40)"_s},
    {"  two  ", uR"(\40 two \40)"_s},
    {" ", uR"(\40)"_s},
    {"a]]>b", uR"(a]]\76b)"_s},
    {"]]>1]]>", uR"(]]\0761]]\76)"_s},
    {"\x80\x81\xE9\xFF", u"\u20AC\u0081\u00E9\u00FF"_s},
};

} // namespace

TEST(RecoveredText, IsEscapedWhereItWouldNotArrive)
{
    for (const auto &[delivered, text] : everywhere) {
        EXPECT_EQ(RecoverWording(delivered), text);
        EXPECT_EQ(RecoverWritten(delivered), text);
        EXPECT_EQ(InterpretScriptText(Encoded(text)), delivered);
    }
}

TEST(RecoveredText, KeepsTheQuotesThatTheScriptEscapes)
{
    const Row rows[] = {
        {R"(He said "go")", uR"(He said "go")"_s},
        {R"(a\"b)", uR"(a\134"b)"_s},
        {R"(a\\"7\)", uR"(a\\\134"7\\)"_s},
        {"\n\"", uR"(\n")"_s},
    };
    for (const auto &[delivered, text] : rows) {
        EXPECT_EQ(RecoverWording(delivered), text);
        EXPECT_EQ(InterpretScriptText(WithEscapedQuotes(Encoded(text))), delivered);
    }
}

TEST(RecoveredText, WritesQuotesAsCodesWhereTheScriptDoesNot)
{
    EXPECT_EQ(RecoverWritten(R"("go")"), uR"(\42go\42)"_s);
    EXPECT_EQ(RecoverWritten(R"("7\")"), uR"(\0427\134\42)"_s);
    EXPECT_EQ(RecoverItem(R"("go")", true), uR"(\42go\42)"_s);
    EXPECT_EQ(RecoverVersion(R"(2")"), uR"(2\42)"_s);
}

TEST(RecoveredText, HasNoBlankInAVersion)
{
    EXPECT_EQ(RecoverVersion("1.0 b 2"), uR"(1.0\40b\0402)"_s);
}

TEST(RecoveredText, HasNoCommaInAnItem)
{
    EXPECT_EQ(RecoverItem("a,b,1", true), uR"(a\54b\0541)"_s);
    EXPECT_EQ(InterpretItems(R"(a\54b\0541,c)"), (QList<QByteArray>{"a,b,1", "c"}));
    EXPECT_EQ(RecoverWritten("a,b"), u"a,b"_s);
}

TEST(RecoveredText, AnEmptyItemByItselfIsWritten)
{
    EXPECT_EQ(RecoverItem("", true), u""_s);
    EXPECT_EQ(RecoverItem("", false), uR"(\_)"_s);
    EXPECT_EQ(InterpretItems(R"(\_)"), QList<QByteArray>{""});
}

TEST(RecoveredText, LeavesOutOfANameWhatNoFileHolds)
{
    EXPECT_EQ(RecoverName("Survey"), u"Survey"_s);
    EXPECT_EQ(RecoverName("a\\n\"b\tc"), u"a\\n\"b\tc"_s);
    EXPECT_EQ(RecoverName("a\nb\x1F"), u"ab"_s);
    EXPECT_EQ(RecoverName("]]>>a]]\n>"), u"]]a]]"_s);
}

TEST(RecoveredText, TheBackslashBehindAFolderIsTheScripts)
{
    const Row rows[] = {
        {R"(C:\Data\)", uR"(C:\Data)"_s},
        {R"(C:\)", uR"(C:\)"_s},
        {R"(C:\Data\\)", uR"(C:\Data\\)"_s},
        {R"(C:\Data \)", uR"(C:\Data \)"_s},
        {R"(\)", uR"(\)"_s},
        {"", u""_s},
        {R"(C:\a\101\n\)", uR"(C:\a\101\n)"_s},
        {R"(C:\Data)", uR"(C:\Data)"_s},
    };
    for (const auto &[delivered, text] : rows)
        EXPECT_EQ(RecoverFolder(delivered), text);
}
