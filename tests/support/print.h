#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// GoogleTest finds these by their arguments' types and prints a failure legibly.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toStdString() << '"';
}
