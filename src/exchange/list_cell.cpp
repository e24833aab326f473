#include "exchange/list_cell.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QChar escape = u'\\';
constexpr auto emptyText = "\\-"_L1;

/// What stands behind the backslash, and what it means.
struct Escape {
    QChar letter, meaning;
};
constexpr Escape escapes[] = {{escape, escape}, {u'n', u'\n'}, {u't', u'\t'}, {u's', u' '}};

QString Written(const QString &text)
{
    if (text.isEmpty())
        return emptyText;
    QString written;
    const QString unified = WithLineFeeds(text);
    for (qsizetype i = 0; i < unified.size(); ++i) {
        const QChar c = unified[i];
        const bool isInside = i > 0 && i + 1 < unified.size();
        const Escape *found = std::ranges::find(escapes, c, &Escape::meaning);
        if (found == std::end(escapes) || (c == u' ' && isInside))
            written += c;
        else
            written.append(escape).append(found->letter);
    }
    return written;
}

Result<QString> Meant(QStringView line)
{
    QString text;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] != escape) {
            text += line[i];
            continue;
        }
        const QStringView letter = line.mid(++i, 1); // none at the end
        const Escape *found = std::ranges::find_if(
            escapes, [letter](const Escape &known) { return letter == known.letter; });
        if (found == std::end(escapes))
            return Error{u"'\\%1' means nothing; write '\\\\' for a backslash."_s.arg(letter)};
        text += found->meaning;
    }
    return text;
}

QStringView WithoutSpace(QStringView line)
{
    const auto isSpace = [](QChar c) { return c == u' ' || c == u'\t'; };
    while (!line.isEmpty() && isSpace(line.front()))
        line = line.sliced(1);
    while (!line.isEmpty() && isSpace(line.back()))
        line.chop(1);
    return line;
}

} // namespace

QString WriteList(const QStringList &texts)
{
    QStringList lines;
    for (const QString &text : texts)
        lines += Written(text);
    return lines.join(u'\n');
}

Result<QStringList> ReadList(const QString &cell)
{
    QStringList texts;
    const QString unified = WithLineFeeds(cell);
    for (const QStringView whole : QStringView(unified).split(u'\n')) {
        const QStringView line = WithoutSpace(whole);
        if (line.isEmpty())
            continue;
        const Result<QString> text = line == emptyText ? QString() : Meant(line);
        if (!text)
            return text.error();
        texts += *text;
    }
    return texts;
}

QString WithLineFeeds(QString text)
{
    return text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

} // namespace vellumo
