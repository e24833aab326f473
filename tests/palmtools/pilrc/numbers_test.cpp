#include "palmtools/pilrc/numbers.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

constexpr Rectangle previous = {10, 20, 300, 400};

/// The value and the word that follows, or "LINE TEXT" of the error.
std::string NumberIn(std::string_view script)
{
    Warnings warnings;
    ScriptReader words(script, warnings);
    try {
        const std::string value = std::to_string(ReadNumber(words, previous));
        return value + "|" + std::string(words.Peek().written);
    } catch (const ScriptError &error) {
        return std::to_string(error.line()) + " " + error.what();
    }
}

struct Row {
    const char *what;
    std::string script, result;
};

void ExpectNumbers(const std::vector<Row> &rows)
{
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(NumberIn(row.script), row.result);
    }
}

TEST(Numbers, AreReckonedFromLeftToRight)
{
    ExpectNumbers({
        {"alone", "5", "5|"},
        {"no precedence", "1+2*3", "9|"},
        {"nor the other way", "2*3+4", "10|"},
        {"parentheses", "1+(2*3)", "7|"},
        {"parentheses in front", "(1+2)*3", "9|"},
        {"nested", "((2))*((3)+(4))", "14|"},
        {"subtraction from the left", "10-3-2", "5|"},
        {"division cuts", "7/2", "3|"},
        {"division cuts towards zero", "(-7)/2", "-3|"},
        {"by a negative number", "7/(-2)", "-3|"},
        {"the minus takes everything", "-5+3", "-8|"},
        {"up to the parenthesis", "(-5)+3", "-2|"},
        {"a minus inside takes what follows", "2--3+4", "9|"},
        {"a chain of them", "- - - 5", "-5|"},
        {"after an operator", "2*-3*4", "-24|"},
        {"a list without parentheses is one number", "5 -6 7", "-1|7"},
        {"a list with parentheses", "5 (-6) 7", "5|("},
        {"over lines", "1\n+\n2", "3|"},
        {"ends before another word", "4 FONT", "4|FONT"},
    });
}

TEST(Numbers, KnowThePreviousObject)
{
    ExpectNumbers({
        {"x", "PREVLEFT", "10|"},
        {"y", "PREVTOP", "20|"},
        {"w", "PREVWIDTH", "300|"},
        {"h", "PREVHEIGHT", "400|"},
        {"x + w", "PREVRIGHT", "310|"},
        {"y + h", "PREVBOTTOM", "420|"},
        {"any case", "prevLeft", "10|"},
        {"in a sum", "PREVBOTTOM+10", "430|"},
        {"after a minus", "-PREVTOP", "-20|"},
        {"no other name", "PREV", "1 number expected, not 'PREV'"},
    });
}

TEST(Numbers, AreRefused)
{
    ExpectNumbers({
        {"a text", "\"5\"", "1 number expected, not '\"5\"'"},
        {"the end", "\n", "1 number expected, not 'end of file'"},
        {"nothing after the operator", "5+\nFONT", "2 number expected, not 'FONT'"},
        {"an operator in front", "*5", "1 number expected, not '*'"},
        {"nothing in parentheses", "()", "1 number expected, not ')'"},
        {"not closed", "(5\n6", "2 ) expected, not '6'"},
        {"division by zero", "5/\n0", "2 division by zero"},
        {"by what comes to zero", "5/(1-1)", "1 division by zero"},
    });
}

TEST(Numbers, StayWithinBounds)
{
    ExpectNumbers({
        {"largest", "0xFFFFFFFF", "4294967295|"},
        {"smallest", "-0xFFFFFFFF", "-4294967295|"},
        {"largest sum", "0xFFFFFFFE+1", "4294967295|"},
        {"one more", "0xFFFFFFFF+1", "1 the number is too large"},
        {"one less", "-(0xFFFFFFFF+1)", "1 the number is too large"},
        {"difference", "(-1)-0xFFFFFFFF", "1 the number is too large"},
        {"largest product", "0x10000*0xFFFF", "4294901760|"},
        {"product", "0x10000*0x10000", "1 the number is too large"},
        {"a product beyond 64 bits", "0xFFFFFFFF*0xFFFFFFFF", "1 the number is too large"},
        {"a product of negative ones", "(-0x10000)*(-0x10000)", "1 the number is too large"},
        {"nothing times the largest", "0*0xFFFFFFFF", "0|"},
    });
}

TEST(Numbers, NestAsDeepAsTheyLike)
{
    constexpr std::size_t depth = 100000;
    ExpectNumbers({
        {"parentheses", Repeated("(", depth) + "5" + Repeated(")", depth), "5|"},
        {"leading minus", Repeated("- ", depth) + "5", "5|"},
        {"an odd number of them", Repeated("- ", depth + 1) + "5", "-5|"},
        {"both", Repeated("-(", depth) + "5" + Repeated(")", depth), "5|"},
        {"sums", Repeated("1+(", depth) + "1" + Repeated(")", depth), "100001|"},
        {"not closed", Repeated("(", depth), "1 number expected, not 'end of file'"},
        {"as deep as may be", Repeated("-", 1000000) + "5", "5|"},
        {"deeper", Repeated("-", 1000001) + "\n5", "1 the number is nested more than 1000000 deep"},
        {"of operations", Repeated("1+(", 500000) + "\n1+1",
         "2 the number is nested more than 1000000 deep"},
    });
}

} // namespace
} // namespace palmtools
