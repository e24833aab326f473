#pragma once

#include "support/files.h"

#include <gtest/gtest.h>

namespace vellumo {

/// A text that is so many pixels wide, at least 6, in font 0 or the bold font 1 of the handheld.
inline QByteArray OfWidth(int width, int font)
{
    // i and j are 2 and 3 pixels wide in font 0, 3 and 4 in font 1.
    const int narrow = font + 2;
    QByteArray text(width / narrow, 'i');
    for (int i = 0; i < width % narrow; ++i)
        text[i] = 'j';
    return text;
}

/// The width that resources/font-widths.csv has for a code in a font.
inline int WidthInCsv(int font, int code)
{
    static const QList<QByteArray> lines =
        BytesOf(DataFile(QStringLiteral("../../resources/font-widths.csv"))).split('\n');
    const int row = (font == 3 ? 2 : font) * 256 + code;
    return lines.value(1 + row).split(',').value(2).toInt();
}

} // namespace vellumo
