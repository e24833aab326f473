#include "palmtools/pilrc/compiled.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Messages, AboutWords)
{
    ExpectDiagnostics({
        {"a byte that begins no word", "VERSION\n'a'",
         "2 error character ''' does not belong here\n"},
        {"a control character", "\n\f", "2 error character '\\x0C' does not belong here\n"},
        {"a high byte", "\xE4", "1 error character '\xE4' does not belong here\n"},
        {"a zero byte", std::string("VERSION\n\0", 9), "2 error NUL byte in the script\n"},
        {"0x without a digit", "VERSION ID 0x \"a\"", "1 error 0x without a hexadecimal digit\n"},
        {"a large number", "VERSION ID\n4294967296 \"a\"", "2 error the number is too large\n"},
        {"a text not closed", "VERSION\n\"a\n\"", "2 error the text is not closed on its line\n"},
        {"a comment not closed", "VERSION \"a\"\n/*\n\n", "3 error the comment is not closed\n"},
        {"an empty script", "", "1 error the script is empty\n"},
        {"only comments and line ends", "\n// a\n/* b */\n", "3 error the script is empty\n"},
    });
}

TEST(Messages, AboutStatements)
{
    ExpectDiagnostics({
        {"another name", "VERSION \"a\"\nBITMAP \"b\"",
         "2 error statement expected, not 'BITMAP'\n"},
        {"a number", "5", "1 error statement expected, not '5'\n"},
        {"a text", "\"a b\"", "1 error statement expected, not '\"a b\"'\n"},
        {"a sign left over in data", "HEX \"a\" 1 5\n-6", "2 error statement expected, not '-'\n"},
        {"a directive", "#define A 1", "1 error statement expected, not '#'\n"},
        {"the file ends after the type", "HEX \"type\"\n",
         "1 error number expected, not 'end of file'\n"},
        {"no type", "HEX ID 1", "1 error text expected, not 'ID'\n"},
        {"no version", "VERSION ID 1\n\nHEX", "3 error text expected, not 'HEX'\n"},
        {"largest byte", "HEX \"a\" 1 255", ""},
        {"one more", "HEX \"a\" 1 2\n256\n3", "2 error the byte 256 is larger than 255\n"},
        {"no resource number", "VERSION ID\n65536\n\"a\"", "3 error 65536 is no resource number\n"},
        {"a negative one", "VERSION ID\n-1\n\"a\"", "3 error -1 is no resource number\n"},
        {"division by zero", "VERSION ID 1/\n0\n\"a\"", "2 error division by zero\n"},
    });
}

TEST(Messages, AboutForms)
{
    ExpectDiagnostics({
        {"no begin", "FORM 1 AT (0 0 1 1)\nTITLE \"a\"", "2 error begin expected, not 'TITLE'\n"},
        {"an attribute of objects", "FORM 1 AT (0 0 1 1) FONT 1 BEGIN END",
         "1 error begin expected, not 'FONT'\n"},
        {"no object", form + "Wrong", "3 error form object expected, not 'Wrong'\n"},
        {"what an unescaped quote leaves over", form + "TITLE \"a\"b\"\n\"c",
         "3 error form object expected, not 'b'\n"},
        {"a text too many", form + "TITLE \"a\" \"b\"",
         "3 error form object expected, not '\"b\"'\n"},
        {"the file ends inside", form + "TITLE \"a\"\n\n",
         "4 error form object expected, not 'end of file'\n"},
        {"no text", form + "TITLE 5", "3 error text expected, not '5'\n"},
        {"a list higher than its field",
         form + "LIST \"a\" ID 1 AT (0 0 9 9) VISIBLEITEMS (-3000)\nEND",
         "4 error -33000 does not fit into 16 bits\n"},
        {"a table without its prefix", "STRINGTABLE ID 7\nVERSION \"1\"",
         "2 error text expected, not 'VERSION'\n"},
        {"no number", form + "FIELD ID AT (1 2 3 4)", "3 error number expected, not 'AT'\n"},
        {"a parenthesis missing", form + "FIELD ID 2 AT (1 2 3 4\nEND",
         "4 error ) expected, not 'END'\n"},
        {"an attribute of other objects", form + "TITLE \"a\"\nUsable",
         "4 error Usable does not belong here\n"},
        {"an unknown font", form + "FIELD ID 2 AT (1 2 3 4) FONT 2\nEND",
         "4 error font 2 is not known\n"},
        {"a place too large", form + "FIELD ID 2 AT (1 65536 3 4)",
         "3 error 65536 does not fit into 16 bits\n"},
        {"a group too large", form + "CHECKBOX \"a\" 1 AT (1 2 3 4) GROUP 256\nEND",
         "4 error 256 does not fit into 8 bits\n"},
        {"the same form twice", form + "END\n" + form + "\nEND\n",
         "7 error form 1 is there twice\n"},
        {"short names of objects", form + "tBTN", "3 error form object expected, not 'tBTN'\n"},
        {"objects of other programs", form + "FORMBITMAP",
         "3 error form object expected, not "
         "'FORMBITMAP'\n"},
    });
}

TEST(Messages, AboutPlacesOfOtherPrograms)
{
    for (const std::string place : {"AUTO", "CENTER", "RIGHT@10", "BOTTOM@10"}) {
        SCOPED_TRACE(place);
        const std::string word = place.substr(0, place.find('@'));
        std::string message = "3 error number expected, not '";
        message.append(word).append("'\n");
        EXPECT_EQ(
            DiagnosticsOf(std::string(form).append("GADGET ID 2 AT (").append(place + " 5 6 7)")),
            message);
    }
    EXPECT_EQ(DiagnosticsOf(form + "GADGET ID 2 AT (4 5 AUTO>10 7)"),
              "3 error number expected, not '>'\n");
    EXPECT_EQ(DiagnosticsOf(form + "GADGET ID 2 AT (4 5 6L 7)"),
              "3 error number expected, not 'L'\n");
    EXPECT_EQ(DiagnosticsOf("VERSION ID someSymbol \"a\""),
              "1 error number expected, not 'someSymbol'\n");
}

TEST(Messages, AboutNavigations)
{
    ExpectDiagnostics({
        {"no initial state", "NAVIGATION ID 1 INITIALOBJECTID 2\nBEGIN ID 1 END",
         "2 error INITIALSTATE is missing\n"},
        {"no begin", "NAVIGATION ID 1 INITIALSTATE 1\nABOVE",
         "2 error begin expected, not 'ABOVE'\n"},
        {"no item", "NAVIGATION 1 INITIALSTATE 1 BEGIN\nEND",
         "2 error number expected, not 'END'\n"},
        {"the file ends inside", "NAVIGATION 1 INITIALSTATE 1 BEGIN ID 2\n",
         "1 error number expected, not 'end of file'\n"},
        {"the file ends in the header", "NAVIGATION 1",
         "1 error begin expected, not 'end of file'\n"},
        {"a word that is no item", "NAVIGATION 1 INITIALSTATE 1 BEGIN ID 2\nBESIDE 3 END",
         "2 error number expected, not 'BESIDE'\n"},
        {"the same one twice",
         "NAVIGATION 1 INITIALSTATE 1 BEGIN ID 2 END\nNAVIGATION 1 INITIALSTATE 1 BEGIN ID 2\nEND",
         "3 error resource 'fnav' 1 is there twice\n"},
    });
}

TEST(Messages, AboutResources)
{
    ExpectDiagnostics({
        {"hex twice, seen at the next word", "HEX \"a\\n\" 1 2\nHEX \"a\\n\" 1 3\nVERSION \"a\"",
         "3 error resource 'a\\x0A' 1 is there twice\n"},
        {"string table twice", "STRINGTABLE 1 \"\"\nSTRINGTABLE 1 \"\"",
         "2 error string table 1 is there twice\n"},
        {"a form as data", "HEX \"tFRM\" 1 0\n" + form + "END", "4 error form 1 is there twice\n"},
        {"safe size", "HEX \"a\" 1 " + Quoted(Repeated("x", 65000)), ""},
        {"unsafe size, seen at the next word",
         "HEX \"a\" 1 " + Quoted(Repeated("x", 65001)) + "\nVERSION \"\"",
         "2 warning resource 'a' 1 has 65001 bytes\n"},
        {"largest size", "HEX \"a\" 1\n" + Quoted(Repeated("x", 65535)),
         "2 warning resource 'a' 1 has 65535 bytes\n"},
        {"one more", "HEX \"a\" 1\n" + Quoted(Repeated("x", 65536)),
         "2 error resource 'a' 1 has 65536 bytes, more than 65535\n"},
        {"a large form, seen at its end",
         form + "TITLE " + Quoted(Repeated("x", 65000)) + "\nEND\n\n",
         "4 warning resource 'tFRM' 1 has 65088 bytes\n"},
        {"too large a form", form + "TITLE " + Quoted(Repeated("x", 66000)) + "\nEND\n\n",
         "4 error resource 'tFRM' 1 has 66088 bytes, more than 65535\n"},
        {"a table that nothing can hold",
         form + "TABLE ID 1 AT (1 2 3 4) ROWS 65535 COLUMNS 65535\nEND",
         "4 error resource 'tFRM' 1 has 34360655998 bytes, more than 65535\n"},
    });
}

TEST(Messages, AboutListsAndNavigationsThatNothingCounts)
{
    const std::string list = form + "LIST " + Repeated("\"\"", 65535);
    const std::string navigation = "NAVIGATION 1 INITIALSTATE 1 BEGIN\n" + Repeated("1 ", 65535);
    ExpectDiagnostics({
        {"as many items as can be counted", list + "\nID 1 AT (0 0 1 1) END",
         "4 error resource 'tFRM' 1 has 327782 bytes, more than 65535\n"},
        {"one more", list + "\n\"\"\n\"\"", "4 error the list has more than 65535 items\n"},
        {"as many places as can be counted", navigation + "\nEND",
         "3 error resource 'fnav' 1 has 524300 bytes, more than 65535\n"},
        {"one more", navigation + "\n2\n3\nEND",
         "3 error the navigation has more than 65535 items\n"},
    });
}

TEST(Messages, ShowTheBeginningOfALongWord)
{
    EXPECT_EQ(DiagnosticsOf(std::string(200, 'n')),
              "1 error statement expected, not '" + std::string(200, 'n') + "'\n");
    EXPECT_EQ(DiagnosticsOf(std::string(100000, 'n')),
              "1 error statement expected, not '" + std::string(200, 'n') + "...'\n");
}

TEST(Messages, AboutStringTables)
{
    const std::string table = "STRINGTABLE ID 1 \"prefix\"\n";
    const std::string longest = Quoted(Repeated("x", 255)) + " ";
    ExpectDiagnostics({
        {"as many texts as there may be", table + Repeated("\"a\"", 383), ""},
        {"one more", table + Repeated("\"a\"", 383) + "\n\"a\"\n",
         "3 error the table has more than 383 texts\n"},
        {"as many bytes as there may be", table + Repeated(longest, 128), ""},
        {"one more", table + Repeated(longest, 128) + "\n\"\"\n",
         "3 error the texts of the table are longer than 32768 bytes\n"},
        {"the prefix does not count",
         "STRINGTABLE ID 1 " + Quoted(Repeated("p", 30000)) + "\n" + Repeated(longest, 128), ""},
    });
}

TEST(Messages, WarnAboutNumbersOfTheSystem)
{
    const auto warning = [](int line, int number) {
        return std::to_string(line) + " warning number " + std::to_string(number) +
               " lies in the range kept for the system\n";
    };
    ExpectDiagnostics({
        {"last of ours", "VERSION ID 9999\n\"a\"", ""},
        {"first of the system, seen at the next word", "VERSION ID 10000\n\"a\"",
         warning(2, 10000)},
        {"of an object", form + "GADGET ID 65535\nAT (1 2 3 4) END", warning(4, 65535)},
        {"of a popup list's trigger only", form + "POPUPLIST ID 10000 10001 END",
         warning(3, 10000)},
        {"of a navigation and its items",
         "NAVIGATION ID 10001 INITIALSTATE 1 INITIALOBJECTID 20000 BEGIN\nID 10002 ABOVE 10003 END",
         warning(1, 10001) + warning(2, 10002)},
    });
}

TEST(Messages, ComeInTheOrderInWhichTheyArise)
{
    ExpectDiagnostics({
        {"warnings in front of the error",
         "/* /* */ */\n" + form + "FIELD ID 10000 AT (1 2 3 4)\nEND\n'",
         "1 warning comment inside a comment\n"
         "4 warning number 10000 lies in the range kept for the system\n"
         "5 warning editable field without a Graffiti state indicator\n"
         "6 error character ''' does not belong here\n"},
        {"the first error only", "5 6 '", "1 error statement expected, not '5'\n"},
        {"line ends of every kind count", "\r\n\r\n\n5", "4 error statement expected, not '5'\n"},
    });
}

TEST(Messages, NameTheLineBeyondLongOnes)
{
    const std::string items = Repeated(Quoted(Repeated("x", 32)) + " ", 400);
    EXPECT_EQ(DiagnosticsOf(form + "LIST " + items + "ID 3 AT (1 2 AUTO AUTO)\nWrong"),
              "4 error form object expected, not 'Wrong'\n");
}

} // namespace
} // namespace palmtools
