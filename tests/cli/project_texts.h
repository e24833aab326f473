#pragma once

#include "support/files.h"

#include <QRegularExpression>
#include <QSet>

namespace vellumo {

/// What stands in a file of the project, such as README.md.
inline QString TextOf(const QString &path)
{
    return QString::fromUtf8(BytesOf(QStringLiteral(PROJECT "/") + path));
}

/// What the first group of an expression has where it is found in a text.
inline QSet<QString> Matches(const QString &text, const QString &expression)
{
    const QRegularExpression pattern(expression);
    QSet<QString> found;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        found += match.next().captured(1);
    return found;
}

} // namespace vellumo
