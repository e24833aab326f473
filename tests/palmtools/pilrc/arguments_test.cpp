#include "palmtools/pilrc/arguments.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

#include <functional>

namespace palmtools {
namespace {

/// What the function makes of the script, or "LINE TEXT" of the error; then the warnings.
std::string Read(std::string_view script,
                 const std::function<std::string(ArgumentReader &)> &function)
{
    Warnings warnings;
    std::string result;
    try {
        ScriptReader words(script, warnings);
        ArgumentReader arguments(words);
        arguments.SetPrevious({1, 2, 3, 4});
        result = function(arguments);
    } catch (const ScriptError &error) {
        result = std::to_string(error.line()) + " " + error.what();
    }
    for (const Diagnostic &warning : warnings.kept()) {
        result += '|';
        result += std::to_string(warning.line) + " " + warning.text;
    }
    return result;
}

std::string Extent(const std::optional<std::int64_t> &size)
{
    return size ? std::to_string(*size) : "auto";
}

TEST(ArgumentReader, JoinTexts)
{
    const struct {
        const char *what, *script, *text;
    } rows[] = {
        {"one", R"("ab")", "ab"},
        {"with a plus", R"("ab" + "cd")", "abcd"},
        {"with a backslash", R"("ab" \ "cd")", "abcd"},
        {"over lines", "\"ab\" +\n\"cd\"\n\\ \"ef\"", "abcdef"},
        {"without a sign they are two", R"("ab" "cd")", "ab"},
        {"escapes in each", R"("a\t"+"\x41")", "a\tA"},
        {"what is cut off does not reach over the joint", R"("a\400b"+"c")", "ac"},
        {"a number", "5", "1 text expected, not '5'"},
        {"the end", "", "1 text expected, not 'end of file'"},
        {"nothing to join", "\"a\" +\n5", "2 text expected, not '5'"},
        {"nothing to join at the end", "\"a\" \\\n", "1 text expected, not 'end of file'"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(row.script, [](ArgumentReader &from) { return std::string(from.Text()); }),
                  row.text);
    }
}

TEST(ArgumentReader, KeepTheirTexts)
{
    Warnings warnings;
    const std::string script = Repeated(R"("\x41" "b" "c"+"d" )", 100);
    ScriptReader words(script, warnings);
    ArgumentReader arguments(words);
    std::vector<std::string_view> texts;
    while (words.NextIs(WordKind::text))
        texts.push_back(arguments.Text());
    ASSERT_EQ(texts.size(), 300u);
    EXPECT_EQ(texts[0], "A");
    EXPECT_EQ(texts[1], "b");
    EXPECT_EQ(texts[2], "cd");
    EXPECT_EQ(texts[299], "cd");
}

TEST(ArgumentReader, FitTheirFields)
{
    const struct {
        const char *what, *script;
        int bits;
        const char *result;
    } rows[] = {
        {"smallest of 16 bits", "-32768", 16, "-32768"},
        {"one below", "-32769\n1", 16, "2 -32769 does not fit into 16 bits"},
        {"largest of 16 bits", "65535", 16, "65535"},
        {"one above", "65536", 16, "1 65536 does not fit into 16 bits"},
        {"smallest of 8 bits", "-128", 8, "-128"},
        {"one below", "-129", 8, "1 -129 does not fit into 8 bits"},
        {"largest of 8 bits", "255", 8, "255"},
        {"one above", "256", 8, "1 256 does not fit into 8 bits"},
        {"smallest of 32 bits", "-0x80000000", 32, "-2147483648"},
        {"one below", "-0x80000001", 32, "1 -2147483649 does not fit into 32 bits"},
        {"largest of 32 bits", "0xFFFFFFFF", 32, "4294967295"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(row.script,
                       [&](ArgumentReader &from) { return std::to_string(from.Field(row.bits)); }),
                  row.result);
    }
}

TEST(ArgumentReader, NumberResources)
{
    const struct {
        const char *what, *script, *result;
    } rows[] = {
        {"with the word", "ID 7", "7"},
        {"in any case", "id 7", "7"},
        {"without it", "7", "7"},
        {"reckoned", "ID 3+4", "7"},
        {"smallest", "ID 0", "0"},
        {"negative", "ID -1", "1 -1 is no resource number"},
        {"last without a warning", "ID 9999", "9999"},
        {"first with a warning, at the next word", "ID 10000\nx",
         "10000|2 number 10000 lies in the range kept for the system"},
        {"largest", "ID 65535", "65535|1 number 65535 lies in the range kept for the system"},
        {"one above", "ID 65536", "1 65536 is no resource number"},
        {"the word alone", "ID", "1 number expected, not 'end of file'"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(row.script, [](ArgumentReader &from) { return std::to_string(from.Id()); }),
                  row.result);
    }
}

TEST(ArgumentReader, TellPlaces)
{
    const struct {
        const char *what, *script, *result;
    } rows[] = {
        {"all four", "AT (5 6 7 8)", "5 6 7 8"},
        {"without word and parentheses", "5 6 7 8", "5 6 7 8"},
        {"no blank in front", "at(5 6 7 8)", "5 6 7 8"},
        {"sizes to be settled", "AT (5 6 AUTO auto)", "5 6 auto auto"},
        {"one of them", "5 6 AUTO 8", "5 6 auto 8"},
        {"the object before", "AT (PREVLEFT PREVTOP PREVWIDTH PREVHEIGHT)", "1 2 3 4"},
        {"negative ones", "AT (5 (-6) (-7) 8)", "5 -6 -7 8"},
        {"a minus joins", "AT (5 -6 7 8)", "1 number expected, not ')'"},
        {"the word without parentheses", "AT 5 6 7 8", "1 ( expected, not '5'"},
        {"parentheses without the word", "(5 6 7 8)", "1 ) expected, not '6'"},
        {"too many", "AT (5 6 7 8\n9)", "2 ) expected, not '9'"},
        {"no place can be settled", "AT (AUTO 6 7 8)", "1 number expected, not 'AUTO'"},
        {"nor the other", "AT (5 AUTO 7 8)", "1 number expected, not 'AUTO'"},
        {"x too large", "AT (65536 6 7 8)", "1 65536 does not fit into 16 bits"},
        {"h too large", "AT (5 6 7 65536)", "1 65536 does not fit into 16 bits"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(row.script,
                       [](ArgumentReader &from) {
                           const Place place = from.PositionAndSize();
                           return std::to_string(place.x) + " " + std::to_string(place.y) + " " +
                                  Extent(place.w) + " " + Extent(place.h);
                       }),
                  row.result);
    }
}

TEST(ArgumentReader, TellPositions)
{
    const auto position = [](ArgumentReader &from) {
        const Place place = from.Position();
        return std::to_string(place.x) + " " + std::to_string(place.y);
    };
    EXPECT_EQ(Read("AT (5 6)", position), "5 6");
    EXPECT_EQ(Read("5 6", position), "5 6");
    EXPECT_EQ(Read("AT (5 6 7 8)", position), "1 ) expected, not '7'");
}

} // namespace
} // namespace palmtools
