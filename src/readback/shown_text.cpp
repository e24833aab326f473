#include "readback/shown_text.h"

#include "platform/code_page.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QString Printable(QByteArrayView bytes)
{
    QString shown;
    const QString text = FromWindows1252(bytes);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u' ' || (text[i].isPrint() && !text[i].isSpace()))
            shown += text[i];
        else
            shown += u"\\x%1"_s.arg(static_cast<unsigned char>(bytes[i]), 2, 16, QChar(u'0'));
    }
    return shown;
}

QString ShownAround(QByteArrayView bytes, qsizetype place)
{
    constexpr qsizetype before = 15;
    constexpr qsizetype longest = 60;
    const qsizetype start = place > longest / 2 ? place - before : 0;
    const QByteArrayView part = bytes.sliced(start, std::min(longest, bytes.size() - start));
    return u"'%1%2%3'"_s.arg(start > 0 ? u"..."_s : QString(), Printable(part),
                             start + part.size() < bytes.size() ? u"..."_s : QString());
}

} // namespace

QString Shown(QByteArrayView bytes)
{
    return ShownAround(bytes, 0);
}

QString ShownDifference(QByteArrayView found, QByteArrayView expected)
{
    const auto [first, second] = std::ranges::mismatch(found, expected);
    const qsizetype place = first - found.begin();
    return u"%1 instead of %2"_s.arg(ShownAround(found, place), ShownAround(expected, place));
}

} // namespace vellumo
