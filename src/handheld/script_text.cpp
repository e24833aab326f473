#include "handheld/script_text.h"

#include <algorithm>
#include <iterator>

namespace vellumo {
namespace {

constexpr int endOfText = 0400; // as an octal escape it ends the text where it stands

constexpr struct {
    char letter, byte;
} letterEscapes[] = {
    {'a', 7}, {'b', 8}, {'t', 9}, {'n', 10}, {'v', 11}, {'f', 12}, {'r', 13}, {'e', 27}, {'z', 26},
};

/// The value of a digit in either case, or a large number.
int DigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char lower = static_cast<char>(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 1000;
}

/// Takes digits off the front of a text while there are any, at most so many, and the value they
/// make stays below the limit.
int TakeDigits(QByteArrayView &rest, int base, qsizetype atMost, int limit)
{
    int value = 0;
    for (qsizetype taken = 0; taken < atMost && !rest.isEmpty(); ++taken) {
        const int digit = DigitValue(rest.front());
        if (digit >= base || value * base + digit >= limit)
            break;
        value = value * base + digit;
        rest = rest.sliced(1);
    }
    return value;
}

void AppendCode(QByteArray &bytes, int code)
{
    if (code != 0)
        bytes.append(static_cast<char>(code));
}

/// Takes what follows a backslash off the front of a text and appends what it stands for.
void TakeEscape(QByteArrayView &rest, QByteArray &bytes)
{
    const char first = rest.front();
    if (DigitValue(first) < 8) {
        const int code = TakeDigits(rest, 8, 3, 01000);
        if (code == endOfText)
            rest = {};
        AppendCode(bytes, code & 0xFF);
        return;
    }
    rest = rest.sliced(1);
    if (first == 'x' || first == 'X') {
        AppendCode(bytes, TakeDigits(rest, 16, rest.size(), 0x100));
        return;
    }
    const auto named =
        std::ranges::find(letterEscapes, first, [](const auto &escape) { return escape.letter; });
    if (named != std::end(letterEscapes))
        bytes.append(named->byte);
    else if (first != '_')
        bytes.append(first);
}

} // namespace

QByteArray InterpretScriptText(QByteArrayView written)
{
    QByteArray bytes;
    while (!written.isEmpty()) {
        const char next = written.front();
        written = written.sliced(1);
        if (next != '\\')
            bytes.append(next);
        else if (!written.isEmpty())
            TakeEscape(written, bytes);
    }
    return bytes;
}

QByteArray WithEscapedQuotes(QByteArrayView text)
{
    QByteArray escaped;
    for (const char byte : text) {
        if (byte == '"') {
            while (escaped.endsWith('\\'))
                escaped.chop(1);
            escaped.append('\\');
        }
        escaped.append(byte);
    }
    return escaped;
}

QList<QByteArray> InterpretItems(const QByteArray &joined)
{
    QList<QByteArray> items;
    if (!joined.isEmpty()) {
        for (const QByteArray &written : joined.split(','))
            items.append(InterpretScriptText(written));
    }
    return items;
}

} // namespace vellumo
