#include "palmtools/pilrc/arithmetic.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

constexpr std::int64_t largest = 0xFFFFFFFF;

/// The result of an operator or the text of its error.
std::string Applied(char sign, std::int64_t left, std::int64_t right)
{
    Warnings warnings;
    ScriptReader words({&sign, 1}, warnings);
    const Operator *operation = TakeOperator(words);
    if (!operation)
        return "no operator";
    EXPECT_EQ(operation->sign, sign);
    EXPECT_TRUE(words.NextIs(WordKind::end));
    try {
        return std::to_string(operation->apply(left, right, words));
    } catch (const ScriptError &error) {
        return error.what();
    }
}

TEST(Arithmetic, HasFourOperators)
{
    EXPECT_EQ(Applied('+', 7, -2), "5");
    EXPECT_EQ(Applied('-', 7, -2), "9");
    EXPECT_EQ(Applied('*', 7, -2), "-14");
    EXPECT_EQ(Applied('/', 7, -2), "-3");
    for (const char sign : {'%', '(', ')', '^'})
        EXPECT_EQ(Applied(sign, 7, 2), "no operator") << sign;
}

TEST(Arithmetic, LeavesWordsThatAreNoOperators)
{
    Warnings warnings;
    for (const std::string_view script : {"5", "a", "\"+\"", "("}) {
        ScriptReader words(script, warnings);
        EXPECT_EQ(TakeOperator(words), nullptr);
        EXPECT_EQ(words.Take().written, script);
    }
}

TEST(Arithmetic, StaysWithinBounds)
{
    const std::string tooLarge = "the number is too large";
    const struct {
        const char *what;
        char sign;
        std::int64_t left, right;
        std::string result;
    } rows[] = {
        {"largest sum", '+', largest - 1, 1, "4294967295"},
        {"one more", '+', largest, 1, tooLarge},
        {"smallest difference", '-', -largest + 1, 1, "-4294967295"},
        {"one less", '-', -largest, 1, tooLarge},
        {"largest product", '*', largest, -1, "-4294967295"},
        {"a product beyond 64 bits", '*', largest, largest, tooLarge},
        {"nothing times the largest", '*', 0, largest, "0"},
        {"the largest times nothing", '*', largest, 0, "0"},
        {"largest quotient", '/', -largest, 1, "-4294967295"},
        {"division by zero", '/', 1, 0, "division by zero"},
        {"of zero as well", '/', 0, 0, "division by zero"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Applied(row.sign, row.left, row.right), row.result);
    }
}

TEST(Arithmetic, ChecksASingleNumber)
{
    Warnings warnings;
    const ScriptReader words("", warnings);
    EXPECT_EQ(CheckedNumber(largest, words), largest);
    EXPECT_EQ(CheckedNumber(-largest, words), -largest);
    EXPECT_THROW(CheckedNumber(largest + 1, words), ScriptError);
    EXPECT_THROW(CheckedNumber(-largest - 1, words), ScriptError);
}

} // namespace
} // namespace palmtools
