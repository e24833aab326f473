#include "palmtools/pilrc/text_escapes.h"

#include "palmtools/common/ascii.h"

#include <cstddef>

namespace palmtools {
namespace {

struct SimpleEscape {
    char letter;
    int code;
};

// Codes that are no byte: a zero byte would end the text on the handheld, and 256, which only octal
// digits can write, ends it here.
constexpr int nothing = 0;
constexpr int endOfText = 256;

constexpr SimpleEscape simpleEscapes[] = {
    {'a', 7},  {'b', 8},  {'t', 9},  {'n', 10}, {'v', 11},
    {'f', 12}, {'r', 13}, {'e', 27}, {'z', 26}, {'_', nothing},
};

/// Takes at most that many digits from the front, and none that brings the value above the limit.
int TakeDigits(std::string_view &rest, int base, std::size_t most, int limit)
{
    int value = 0;
    for (std::size_t taken = 0; taken < most && !rest.empty(); ++taken) {
        const int digit = DigitValue(rest.front(), base);
        if (digit < 0 || value * base + digit > limit)
            break;
        value = value * base + digit;
        rest.remove_prefix(1);
    }
    return value;
}

/// Takes what belongs to a backslash from the front: a code, of which the low 8 bits count,
/// nothing or endOfText.
int TakeEscape(std::string_view &rest)
{
    if (DigitValue(rest.front(), 8) >= 0)
        return TakeDigits(rest, 8, 3, 0777);

    const char letter = rest.front();
    rest.remove_prefix(1);
    if (UpperCase(letter) == 'X')
        return TakeDigits(rest, 16, rest.npos, 0xFF);
    for (const SimpleEscape &escape : simpleEscapes) {
        if (escape.letter == letter)
            return escape.code;
    }
    return static_cast<unsigned char>(letter);
}

} // namespace

void AppendUnescaped(std::string_view written, std::string &text)
{
    for (;;) {
        const std::string_view plain = written.substr(0, written.find('\\'));
        text += plain;
        if (plain.size() == written.size())
            return;
        written.remove_prefix(plain.size() + 1);
        const int code = TakeEscape(written);
        if (code == endOfText)
            return;
        if (code != nothing)
            text += static_cast<char>(static_cast<unsigned char>(code & 0xFF));
    }
}

} // namespace palmtools
