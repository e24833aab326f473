#include "palmtools/pilrc/compiled.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

struct StatementRow {
    const char *what;
    std::string script, type;
    int number;
    std::string bytes;
};

void ExpectResources(const std::vector<StatementRow> &rows)
{
    for (const StatementRow &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(DiagnosticsOf(row.script), "");
        const Compilation compilation = CompileScript(row.script);
        ASSERT_EQ(compilation.resources.size(), 1u);
        EXPECT_EQ(ShownType(compilation.resources[0].type), row.type);
        EXPECT_EQ(compilation.resources[0].number, row.number);
        EXPECT_EQ(compilation.resources[0].bytes, row.bytes);
    }
}

TEST(Statements, Hex)
{
    ExpectResources({
        {"numbers", "hex\"flds\" ID 1000\n0x00 0x14 255", "flds", 1000, FromHex("0014FF")},
        {"a text has no zero byte", "HEX \"desc\" id 3 \"ab\" 0x00", "desc", 3, FromHex("616200")},
        {"in any order", "HEX \"desc\" id 3 1 \"a\" \"b\" 2 \"c\"+\"d\"", "desc", 3,
         FromHex("0161620263 64")},
        {"no data", "HEX \"fldt\" ID 1001", "fldt", 1001, ""},
        {"a short type", "HEX \"ab\" 1 5", "ab", 1, FromHex("05")},
        {"a long type", "HEX \"abcdef\" 1 5", "abcd", 1, FromHex("05")},
        {"a joined type", "HEX \"ab\"+\"cd\" 1 5", "abcd", 1, FromHex("05")},
        {"a reckoned number", "HEX \"abcd\" ID (1+2) 5", "abcd", 3, FromHex("05")},
    });
}

TEST(Statements, StringTable)
{
    ExpectResources({
        {"entries", "STRINGTABLE ID 1004 \"\" \"FINDER\" \"B\"", "tSTL", 1004,
         FromHex("00 0002") + "FINDER" + FromHex("00 4200")},
        {"a prefix", "STRINGTABLE 1 \"ab\" \"c\"", "tSTL", 1, FromHex("616200 0001 6300")},
        {"an empty entry", "STRINGTABLE 1 \"\" \"\"", "tSTL", 1, FromHex("00 0001 00")},
        {"no entry", "STRINGTABLE 1 \"ab\"", "tSTL", 1, FromHex("616200 0000")},
    });
}

TEST(Statements, NamesAndVersions)
{
    ExpectResources({
        {"padded", "applicationiconname id 1000 \"text\"", "tAIN", 1000, FromHex("746578740000")},
        {"even", "APPLICATIONICONNAME 1 \"abc\"", "tAIN", 1, FromHex("61626300")},
        {"version, not padded", "VERSION ID 2 \"1.0\" + \"b\"", "tver", 2, FromHex("312E306200")},
        {"version without its number", "version \"1.0\"", "tver", 1, FromHex("312E3000")},
        {"version without the word", "VERSION 3 \"1\"", "tver", 3, FromHex("3100")},
        {"empty version", "version id 1 \"\"", "tver", 1, FromHex("00")},
    });
}

TEST(Statements, Navigation)
{
    const std::string items = "BEGIN ID 2 BELOW 100 ID 99 BELOW 101 ABOVE 2 7 END";
    const std::string itemBytes = FromHex("0002 0000 0000 0064  0063 0000 0002 0065"
                                          "0007 0000 0000 0000");
    ExpectResources({
        {"as the designer writes it",
         "NAVIGATION ID 1 INITIALSTATE 0x00000001 INITIALOBJECTID 2 " + items, "fnav", 1,
         FromHex("0001 0003 0014 0008 00000001 0002 000000000000") + itemBytes},
        {"the other order, no object", "NAVIGATION ID 1 INITIALSTATE 0xFFFFFFFE " + items, "fnav",
         1, FromHex("0001 0003 0014 0008 FFFFFFFE 0000 000000000000") + itemBytes},
        {"the last counts",
         "NAVIGATION 1 INITIALOBJECTID 5 INITIALSTATE 7 INITIALOBJECTID 6 INITIALSTATE 8 " + items,
         "fnav", 1, FromHex("0001 0003 0014 0008 00000008 0006 000000000000") + itemBytes},
        {"in an item as well", "NAVIGATION 1 INITIALSTATE 0 BEGIN ID 1 ABOVE 2 BELOW 3 ABOVE 4 END",
         "fnav", 1, FromHex("0001 0001 0014 0008 00000000 0000 000000000000 0001 0000 0004 0003")},
    });
}

TEST(Statements, Form)
{
    const auto form = [](const char *place, const char *frame, const char *flags) {
        return std::string(8, '\0') + FromHex("1200") + FromHex(place) + std::string(12, '\0') +
               FromHex(frame) + std::string(8, '\0') + FromHex("0005") + FromHex(flags) +
               std::string(24, '\0');
    };
    ExpectResources({
        {"no attributes", "FORM ID 5 AT (1 2 3 4) BEGIN END", "tFRM", 5,
         form("0001000200030004", "0001", "8800")},
        {"as the designer writes it", "form 5 at (0 0 160 160)\nnoframe\nnosavebehind\nbegin end",
         "tFRM", 5, form("0000000000A000A0", "0000", "8000")},
        {"the last counts",
         "FORM 5 1 2 3 4 NONUSABLE NOFRAME FRAME SAVEBEHIND NOSAVEBEHIND USABLE BEGIN END", "tFRM",
         5, form("0001000200030004", "0001", "8000")},
        {"not usable", "FORM 5 1 2 3 4 NONUSABLE BEGIN END", "tFRM", 5,
         form("0001000200030004", "0001", "0800")},
        {"sizes to be settled", "FORM 5 1 2 AUTO AUTO BEGIN END", "tFRM", 5,
         form("000100020000000C", "0001", "8800")},
    });
}

TEST(Statements, LetObjectsReferToTheirForm)
{
    const Compilation compilation =
        CompileScript("FORM 1 AT (1 2 30 40) BEGIN GADGET 2 AT (PREVRIGHT PREVBOTTOM 7 8) END\n"
                      "FORM 2 AT (PREVLEFT PREVTOP PREVWIDTH PREVHEIGHT) BEGIN END");
    ASSERT_EQ(compilation.resources.size(), 2u);
    EXPECT_EQ(compilation.resources[0].bytes.substr(74),
              FromHex("0002 C000 001F 002A 0007 0008") + std::string(8, '\0'));
    EXPECT_EQ(compilation.resources[1].bytes.substr(10, 8), FromHex("001F 002A 0007 0008"));
}

TEST(Statements, StandInTheirOrder)
{
    const Compilation compilation = CompileScript("VERSION \"1\" HEX \"b\" 2 HEX \"b\" 1 // end\n"
                                                  "STRINGTABLE 5 \"\" /* none */ HEX \"a\" 3 1");
    std::string order;
    for (const Resource &resource : compilation.resources)
        order += ShownType(resource.type) + std::to_string(resource.number) + " ";
    EXPECT_EQ(order, "tver1 b2 b1 tSTL5 a3 ");
    EXPECT_FALSE(compilation.failed);
}

} // namespace
} // namespace palmtools
