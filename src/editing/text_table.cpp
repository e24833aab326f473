#include "editing/text_table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool EndsCell(QChar c)
{
    return c == u'\t' || c == u'\n' || c == u'\r';
}

QString Written(const QString &cell)
{
    if (std::ranges::none_of(cell, [](QChar c) { return EndsCell(c) || c == u'"'; }))
        return cell;
    return u'"' + QString(cell).replace(u'"', "\"\""_L1) + u'"';
}

/// Where the quotation marks that open the text are closed, with the cell; -1 = they are none.
qsizetype ClosingMark(QStringView text)
{
    if (!text.startsWith(u'"'))
        return -1;
    for (qsizetype at = 1; (at = text.indexOf(u'"', at)) >= 0; at += 2) {
        const bool isLast = at + 1 == text.size();
        if (isLast || EndsCell(text[at + 1]))
            return at;
        if (text[at + 1] != u'"')
            return -1;
    }
    return -1;
}

/// Takes the next cell off the text.
QString TakeCell(QStringView &text)
{
    if (const qsizetype closing = ClosingMark(text); closing > 0) {
        const QString quoted = text.sliced(1, closing - 1).toString();
        text = text.sliced(closing + 1);
        return QString(quoted).replace("\"\""_L1, "\""_L1);
    }
    const auto *end = std::ranges::find_if(text, EndsCell);
    QString cell = text.first(end - text.begin()).toString();
    text = text.sliced(cell.size());
    return cell;
}

} // namespace

QString WriteTable(const QList<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells += Written(cell);
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

QList<QStringList> ReadTable(QStringView text)
{
    QList<QStringList> rows;
    while (!text.isEmpty()) {
        QStringList row = {TakeCell(text)};
        while (text.startsWith(u'\t')) {
            text = text.sliced(1);
            row += TakeCell(text);
        }
        rows += row;
        text = text.sliced(text.startsWith("\r\n"_L1) ? 2 : std::min(text.size(), qsizetype(1)));
    }
    return rows;
}

} // namespace vellumo
