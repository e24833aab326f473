#pragma once

#include "readback/palm_database.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <functional>

namespace vellumo {

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
    QByteArray bytes = BytesOf(DataFile(QStringLiteral("palm/%1.prc").arg(name)));
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

/// The data of a resource that a database has.
inline QByteArray DataOf(const PalmDatabase &database, QByteArrayView type, quint32 number)
{
    for (const PalmResource &resource : database.resources)
        if (resource.type == type && resource.number == number)
            return resource.data;
    ADD_FAILURE() << "no resource " << Describe(ResourceKey{type, number}).toStdString();
    return {};
}

/// Bytes with a big-endian number put over those at an offset.
inline QByteArray WithNumber(QByteArray bytes, qsizetype offset, qsizetype size, quint32 number)
{
    for (qsizetype i = 0; i < size; ++i)
        bytes[offset + i] = static_cast<char>(number >> (8 * (size - 1 - i)));
    return bytes;
}

/// The bytes of a database with these resources, in their order.
inline QByteArray WithResources(const QByteArray &bytes, const QList<PalmResource> &resources)
{
    constexpr qsizetype entries = 78;
    QByteArray header = bytes.first(entries - 2);
    QByteArray data;
    const auto append = [&header](qsizetype size, qsizetype number) {
        header = WithNumber(header + QByteArray(size, '\0'), header.size(), size, quint32(number));
    };
    append(2, resources.size());
    for (const PalmResource &resource : resources) {
        header += resource.type;
        append(2, resource.number);
        append(4, entries + 10 * resources.size() + 2 + data.size());
        data += resource.data;
    }
    return header + QByteArray(2, '\0') + data;
}

/// The bytes of a database with other data in a resource.
inline QByteArray WithData(const QByteArray &bytes, QByteArrayView type, quint32 number,
                           const std::function<QByteArray(QByteArray)> &change)
{
    QList<PalmResource> resources = Read(bytes).resources;
    for (PalmResource &resource : resources) {
        if (resource.type == type && resource.number == number)
            resource.data = change(resource.data);
    }
    return WithResources(bytes, resources);
}

} // namespace vellumo
