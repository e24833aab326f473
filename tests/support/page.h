#pragma once

#include "support/files.h"

#include <QStringList>

// What tests read from the pages of docs/.

/// A page, such as "csv.md".
inline QString Page(const QString &name)
{
    return QString::fromUtf8(BytesOf(DataFile(QStringLiteral("../../docs/") + name)));
}

/// The rows of the first table on a page whose heading begins with these words, each as its cells;
/// none where there is no such table.
inline QList<QStringList> TableOf(const QString &page, const QString &heading)
{
    const qsizetype start = page.indexOf(QLatin1Char('\n') + heading);
    QList<QStringList> rows;
    if (start < 0)
        return rows;
    const QStringList lines = page.mid(start + 1).split(QLatin1Char('\n')).mid(2);
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1Char('|')))
            break;
        QStringList cells = line.split(QLatin1Char('|')).mid(1);
        cells.removeLast(); // behind the last bar
        for (QString &cell : cells)
            cell = cell.trimmed();
        rows += cells;
    }
    return rows;
}

/// The examples of a page that are marked as of a language, in their order.
inline QStringList ExamplesIn(const QString &page, const QString &language)
{
    const QString begin = QStringLiteral("\n```") + language + QLatin1Char('\n');
    QStringList examples;
    for (qsizetype at = 0; (at = page.indexOf(begin, at)) >= 0;) {
        at += begin.size();
        examples += page.mid(at, page.indexOf(QStringLiteral("```\n"), at) - at);
    }
    return examples;
}

/// The bytes of an example that is a dump: lines of an offset, bytes, and their characters between
/// bars; what no line has is zero.
inline QByteArray BytesOfDump(const QString &dump)
{
    QByteArray bytes;
    for (const QString &line : dump.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        bytes.append(line.left(8).toInt(nullptr, 16) - bytes.size(), '\0');
        bytes += QByteArray::fromHex(line.section(QLatin1Char('|'), 0, 0).mid(8).toLatin1());
    }
    return bytes;
}
