#include "handheld/line_breaks.h"

#include "handheld/font_widths.h"

#include <algorithm>

namespace vellumo {

QList<QByteArrayView> TypedLines(QByteArrayView text)
{
    QList<QByteArrayView> lines;
    for (qsizetype end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n')) {
        lines.append(text.first(end));
        text = text.sliced(end + 1);
    }
    lines.append(text);
    return lines;
}

QList<QByteArrayView> WrappedLines(QByteArrayView line, int width, quint32 font)
{
    QList<QByteArrayView> lines;
    for (;;) {
        const qsizetype fitting = std::max<qsizetype>(FittingLength(line, width, font), 1);
        if (fitting >= line.size())
            break;
        const qsizetype blank = line.first(fitting + 1).lastIndexOf(' ');
        const qsizetype end = blank > 0 ? blank : fitting;
        lines.append(line.first(end));
        line = line.sliced(blank > 0 ? end + 1 : end);
    }
    lines.append(line);
    return lines;
}

} // namespace vellumo
