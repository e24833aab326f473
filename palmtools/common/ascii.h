#pragma once

#include <algorithm>
#include <string_view>

namespace palmtools {

// The standard functions of these names ask the locale; scripts and options must not.

constexpr char UpperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// The value of a digit in base 8, 10 or 16 (either case), or -1 for any other character.
constexpr int DigitValue(char c, int base)
{
    const char upper = UpperCase(c);
    int value = -1;
    if (upper >= '0' && upper <= '9')
        value = upper - '0';
    else if (upper >= 'A' && upper <= 'F')
        value = upper - 'A' + 10;
    return value < base ? value : -1;
}

constexpr bool EqualIgnoringCase(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return UpperCase(a) == UpperCase(b); });
}

constexpr bool EndsIgnoringCase(std::string_view text, std::string_view ending)
{
    return text.size() >= ending.size() &&
           EqualIgnoringCase(text.substr(text.size() - ending.size()), ending);
}

} // namespace palmtools
