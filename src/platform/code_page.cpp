#include "platform/code_page.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// Bytes 0x80 to 0x9F; all others stand for the character of the same number.
constexpr char16_t highControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};

/// The byte of a character, or -1.
int ByteOf(char16_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return character;
    const auto found = std::find(std::begin(highControls), std::end(highControls), character);
    if (found == std::end(highControls))
        return -1;
    return 0x80 + static_cast<int>(found - std::begin(highControls));
}

} // namespace

QString FromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return QChar(code >= 0x80 && code < 0xA0 ? highControls[code - 0x80] : char16_t(code));
    });
    return text;
}

qsizetype AppendWindows1252(QByteArray &bytes, QStringView text)
{
    const qsizetype start = bytes.size();
    bytes.resize(start + text.size());
    char *const to = bytes.data() + start; // append() would look each time whether there is room
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int byte = ByteOf(text[i].unicode());
        if (byte < 0) {
            bytes.truncate(start + i);
            return i;
        }
        to[i] = static_cast<char>(byte);
    }
    return -1;
}

QString DescribeCharacter(QStringView text, qsizetype index)
{
    char32_t code = text[index].unicode();
    if (text[index].isHighSurrogate() && index + 1 < text.size() &&
        text[index + 1].isLowSurrogate())
        code = QChar::surrogateToUcs4(text[index], text[index + 1]);
    const QString name = u"U+%1"_s.arg(QString::number(code, 16).toUpper(), 4, u'0');
    return QChar::isPrint(code) ? u"'%1' (%2)"_s.arg(QString::fromUcs4(&code, 1), name) : name;
}

} // namespace vellumo
