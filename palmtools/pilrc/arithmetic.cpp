#include "palmtools/pilrc/arithmetic.h"

#include <cstdlib>

namespace palmtools {
namespace {

constexpr std::int64_t largestNumber = 0xFFFFFFFF;

std::int64_t Sum(std::int64_t left, std::int64_t right, const ScriptReader &words)
{
    return CheckedNumber(left + right, words);
}

std::int64_t Difference(std::int64_t left, std::int64_t right, const ScriptReader &words)
{
    return CheckedNumber(left - right, words);
}

/// Asked before multiplying: the product of two large numbers is beyond 64 bits.
std::int64_t Product(std::int64_t left, std::int64_t right, const ScriptReader &words)
{
    if (left != 0 && std::abs(right) > largestNumber / std::abs(left))
        words.Fail("the number is too large");
    return left * right;
}

std::int64_t Quotient(std::int64_t left, std::int64_t right, const ScriptReader &words)
{
    if (right == 0)
        words.Fail("division by zero");
    return left / right;
}

constexpr Operator operators[] = {{'+', Sum}, {'-', Difference}, {'*', Product}, {'/', Quotient}};

} // namespace

std::int64_t CheckedNumber(std::int64_t number, const ScriptReader &words)
{
    if (std::abs(number) > largestNumber)
        words.Fail("the number is too large");
    return number;
}

const Operator *TakeOperator(ScriptReader &words)
{
    for (const Operator &candidate : operators) {
        if (words.TakeSign(candidate.sign))
            return &candidate;
    }
    return nullptr;
}

} // namespace palmtools
