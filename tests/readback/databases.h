#pragma once

#include "readback/palm_database.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

/// The names of all databases of tests/data/palm.
inline QStringList GoldenNames()
{
    QStringList names = QDir(DataFile(QStringLiteral("palm"))).entryList({QStringLiteral("*.prc")});
    names.replaceInStrings(QStringLiteral(".prc"), QString());
    return names;
}

/// The bytes of a database of tests/data/palm.
inline QByteArray Golden(const QString &name)
{
    const QByteArray bytes = BytesOf(DataFile(QStringLiteral("palm/%1.prc").arg(name)));
    EXPECT_FALSE(bytes.isEmpty()) << name.toStdString();
    return bytes;
}

inline PalmDatabase Read(const QByteArray &bytes)
{
    const Result<PalmDatabase> database = ReadDatabase(bytes);
    if (database)
        return *database;
    ADD_FAILURE() << database.error().text.toStdString();
    return {};
}

/// Bytes with a big-endian number put over those at an offset.
inline QByteArray WithNumber(QByteArray bytes, qsizetype offset, qsizetype size, quint32 number)
{
    for (qsizetype i = 0; i < size; ++i)
        bytes[offset + i] = static_cast<char>(number >> (8 * (size - 1 - i)));
    return bytes;
}
