#include "palmtools/pilrc/words.h"

#include "palmtools/common/shown.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

/// The words, one a line, as "LINE kind written"; a failure ends them as "LINE error TEXT".
std::string WordsOf(std::string_view script)
{
    constexpr const char *kinds[] = {"end", "text", "number", "name", "sign"};
    Warnings warnings;
    WordScanner scanner(script, warnings);
    std::string words;
    try {
        for (;;) {
            const Word word = scanner.Next();
            words += std::to_string(scanner.line()) + ' ' + kinds[static_cast<int>(word.kind)];
            if (word.kind == WordKind::end)
                return words;
            words.append(" ").append(word.written).append("\n");
        }
    } catch (const ScriptError &error) {
        return words + std::to_string(error.line()) + " error " + error.what();
    }
}

struct WordRow {
    const char *what;
    std::string script, words;
};

void ExpectWords(const std::vector<WordRow> &rows)
{
    for (const WordRow &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(WordsOf(row.script), row.words);
    }
}

TEST(Words, AreToldApart)
{
    ExpectWords({
        {"no blank between text and name", "hex\"flds\"", "1 name hex\n1 text \"flds\"\n1 end"},
        {"signs between names and numbers", "PREVRIGHT+85)",
         "1 name PREVRIGHT\n1 sign +\n1 number 85\n1 sign )\n1 end"},
        {"a number ends where its digits end", "12ab", "1 number 12\n1 name ab\n1 end"},
        {"a hexadecimal number as well", "0x12g", "1 number 0x12\n1 name g\n1 end"},
        {"digits and underscores continue a name", "_a1_ B", "1 name _a1_\n1 name B\n1 end"},
        {"a tab separates", "a\tb", "1 name a\n1 name b\n1 end"},
        {"a slash alone is a sign", "a/b", "1 name a\n1 sign /\n1 name b\n1 end"},
        {"two texts touch", "\"a\"\"b\"", "1 text \"a\"\n1 text \"b\"\n1 end"},
        {"an empty text", "\"\"", "1 text \"\"\n1 end"},
    });
}

TEST(Words, KnowEverySign)
{
    for (const char sign : std::string(".+-*%()[]{},?:^\\#@;|/<>=")) {
        SCOPED_TRACE(sign);
        EXPECT_EQ(WordsOf({&sign, 1}), std::string("1 sign ") + sign + "\n1 end");
    }
}

TEST(Words, RefuseEveryOtherByte)
{
    const std::string taken = ".+-*%()[]{},?:^\\#@;|/<>= \t\r\n\"_";
    for (int code = 1; code < 256; ++code) {
        const char c = static_cast<char>(code);
        const bool isLetterOrDigit = code < 128 && std::isalnum(code);
        if (isLetterOrDigit || taken.find(c) != taken.npos)
            continue;
        SCOPED_TRACE(code);
        EXPECT_EQ(WordsOf(std::string("\n") + c),
                  std::string("2 error character '") + Shown({&c, 1}) + "' does not belong here");
    }
}

TEST(Words, CountLines)
{
    ExpectWords({
        {"a line feed", "a\nb", "1 name a\n2 name b\n2 end"},
        {"both are one line end", "a\r\nb", "1 name a\n2 name b\n2 end"},
        {"a carriage return alone", "a\rb\r\rc", "1 name a\n2 name b\n4 name c\n4 end"},
        {"the other way round they are two", "a\n\rb", "1 name a\n3 name b\n3 end"},
        {"the end belongs to the last line", "a\n", "1 name a\n1 end"},
        {"only line ends", "\n\n\n", "3 end"},
        {"a last line of blanks is a line", "a\n ", "1 name a\n2 end"},
        {"nothing at all", "", "1 end"},
    });
}

TEST(Words, HaveTheValueOfTheirDigits)
{
    const struct {
        const char *what, *script;
        std::uint32_t value;
    } rows[] = {
        {"zero", "0", 0},
        {"leading zeros do not mean octal", "0010", 10},
        {"either case of the digits", "0xaF", 0xAF},
        {"either case of the x", "0XfA", 0xFA},
        {"the largest decimal", "4294967295", 0xFFFFFFFF},
        {"the largest hexadecimal", "0xFFFFFFFF", 0xFFFFFFFF},
        {"leading zeros do not count", "0x000000000000000001", 1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Warnings warnings;
        const Word word = WordScanner(row.script, warnings).Next();
        EXPECT_EQ(word.kind, WordKind::number);
        EXPECT_EQ(word.value, row.value);
    }
}

TEST(Words, RefuseWrongNumbers)
{
    ExpectWords({
        {"one above the largest", "\n4294967296", "2 error the number is too large"},
        {"one hexadecimal above", "0x100000000", "1 error the number is too large"},
        {"far above", Repeated("9", 100), "1 error the number is too large"},
        {"no digit after 0x", "0x", "1 error 0x without a hexadecimal digit"},
        {"a letter after 0x", "0xg", "1 error 0x without a hexadecimal digit"},
    });
}

TEST(Words, RefuseTextsThatAreNotClosed)
{
    const std::string open = "1 error the text is not closed on its line";
    ExpectWords({
        {"the line ends", "\"abc\n\"", open},
        {"a carriage return ends it too", "\"abc\r\"", open},
        {"right after the quote", "\"\n", open},
        {"right after a backslash", "\"a\\\n\"", open},
        {"the file ends", "\"abc", open},
        {"the file ends after the quote", "\"", open},
        {"the file ends after a backslash", "\"\\", open},
        {"the backslash takes the quote", "\"abc\\\"", open},
        {"a backslash that is taken takes none", "\"abc\\\\\"", "1 text \"abc\\\\\"\n1 end"},
        {"a quote that is taken", "\"a\\\"b\"", "1 text \"a\\\"b\"\n1 end"},
    });
}

TEST(Words, RefuseZeroBytes)
{
    const std::string zero(1, '\0');
    ExpectWords({
        {"between words", "a\n" + zero, "1 name a\n2 error NUL byte in the script"},
        {"in a text", "\"a" + zero + "\"", "1 error NUL byte in the script"},
        {"after a backslash", "\"\\" + zero + "\"", "1 error NUL byte in the script"},
        {"in a comment to the end of the line", "// " + zero, "1 error NUL byte in the script"},
        {"in a comment over lines", "/*\n" + zero + "*/", "2 error NUL byte in the script"},
    });
}

TEST(Words, SkipComments)
{
    ExpectWords({
        {"to the end of the line", "a // b\nc", "1 name a\n2 name c\n2 end"},
        {"a carriage return ends it", "// b\rc", "2 name c\n2 end"},
        {"to the end of the file", "a //", "1 name a\n1 end"},
        {"over lines", "a /* b\n\r\n c */ d", "1 name a\n3 name d\n3 end"},
        {"the slash that opens does not close", "/*/ a */ b", "1 name b\n1 end"},
        {"an inner one is closed on its own", "/* /* */ a */ b", "1 name b\n1 end"},
        {"two slashes mean nothing inside", "/* // */ a", "1 name a\n1 end"},
        {"quotes mean nothing inside", "/* \" */ a // \"", "1 name a\n1 end"},
        {"a text has none", "\"/* // */\"", "1 text \"/* // */\"\n1 end"},
        {"not closed", "a\n/* b\n", "1 name a\n2 error the comment is not closed"},
        {"inner one not closed", "/* /* */\n\nb", "3 error the comment is not closed"},
        {"half closed", "/* *", "1 error the comment is not closed"},
    });
}

} // namespace
} // namespace palmtools
