#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

/// Full path of a file of tests/data.
inline QString DataFile(const QString &name)
{
    return QStringLiteral(TEST_DATA "/") + name;
}

/// The bytes of a file; null where it cannot be read.
inline QByteArray BytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool WriteBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// The names in a folder, sorted, hidden ones, devices and loose links too.
inline QStringList NamesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}
