#include "handheld/question_fit.h"

#include "handheld/font_widths.h"
#include "handheld/line_breaks.h"
#include "handheld/screen_geometry.h"
#include "platform/code_page.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The end of a text, in quotation marks, as much as is needed to find it again. It ends with a
/// letter, so that the same place is quoted alike before and behind a blank.
QString QuotedEnd(QByteArrayView text)
{
    constexpr qsizetype enough = 16;
    while (text.endsWith(' '))
        text.chop(1);
    return u"\"%1%2\""_s.arg(text.size() > enough ? u"..."_s : QString(),
                             FromWindows1252(text.last(std::min(enough, text.size()))));
}

QString WideLine(QByteArrayView line, const QString &name)
{
    const QString misfit = LineMisfit(line, screen::questionWidth, boldFont);
    if (misfit.isEmpty())
        return {};
    const bool leaves = DrawnWidth(line, boldFont) > quint32(screen::questionToEnd);
    return u"%1 %2; %3"_s.arg(name, misfit,
                              leaves ? u"the rest leaves the screen or wraps"_s
                                     : u"a button covers the rest"_s);
}

/// The words of a text with one blank between them.
QByteArray Joined(QByteArrayView text)
{
    QByteArrayList words = text.toByteArray().replace('\n', ' ').split(' ');
    words.removeAll(QByteArray());
    return words.join(' ');
}

/// The places for line breaks where those that are typed do not help.
QString OtherBreaks(QByteArrayView text, int freeLines)
{
    const QByteArray words = Joined(text);
    const auto lines = WrappedLines(words, screen::questionWidth, boldFont);
    qsizetype size = lines.size() - 1; // of the lines and the blanks between them
    for (const QByteArrayView line : lines)
        size += line.size();
    const bool withinAWord = size != words.size();
    if (withinAWord || lines.size() > freeLines)
        return u"it has to be shorter"_s;
    QStringList places;
    for (const QByteArrayView line : lines.first(lines.size() - 1))
        places << QuotedEnd(line);
    if (places.isEmpty())
        return u"it fits without \\n"_s;
    return u"it fits with \\n after %1 only"_s.arg(places.join(" and "_L1));
}

/// The way out: a place for a line break where there is room for all the lines that it takes.
QString WayOut(QByteArrayView text, int freeLines)
{
    QByteArrayView before;
    qsizetype lines = 0;
    for (const QByteArrayView line : TypedLines(text)) {
        const auto parts = WrappedLines(line, screen::questionWidth, boldFont);
        lines += parts.size();
        if (parts.size() == 1 || !before.isEmpty())
            continue;
        if (line[parts.front().size()] != ' ')
            break;
        before = parts.front();
    }
    if (before.isEmpty() || lines > freeLines)
        return OtherBreaks(text, freeLines);
    return u"\\n in place of the blank after %1 breaks the line there"_s.arg(QuotedEnd(before));
}

} // namespace

QString LineMisfit(QByteArrayView line, int width, quint32 font)
{
    const int more = static_cast<int>(DrawnWidth(line, font)) - width;
    if (more <= 0)
        return {};
    return u"is %1 too wide and stops after %2"_s.arg(
        more == 1 ? u"1 pixel"_s : u"%1 pixels"_s.arg(more),
        QuotedEnd(line.first(FittingLength(line, width, font))));
}

QString QuestionMisfit(QByteArrayView text, int freeLines)
{
    const QList<QByteArrayView> typed = TypedLines(text);
    QStringList parts;
    qsizetype lines = 0;
    for (qsizetype i = 0; i < typed.size(); ++i) {
        lines += WrappedLines(typed[i], screen::questionWrapWidth, boldFont).size();
        parts << WideLine(typed[i], typed.size() == 1 ? u"it"_s : u"line %1"_s.arg(i + 1));
    }
    if (lines > freeLines)
        parts << u"in %1 lines it runs into the answer, as there is room for %2"_s.arg(lines).arg(
            freeLines);
    parts.removeAll(QString());
    if (parts.isEmpty())
        return {};
    return (parts << WayOut(text, freeLines)).join("; "_L1);
}

} // namespace vellumo
