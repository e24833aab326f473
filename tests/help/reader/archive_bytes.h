#pragma once

#include <QByteArray>
#include <QtEndian>

#include <vector>

// Parts of a compiled help file, put together by the numbers of docs/help-file.md and by nothing of
// the code that is tested.

inline void Store32(QByteArray &bytes, qsizetype offset, quint32 value)
{
    qToLittleEndian(value, bytes.data() + offset);
}

inline void Store64(QByteArray &bytes, qsizetype offset, quint64 value)
{
    qToLittleEndian(value, bytes.data() + offset);
}

inline QByteArray Packed(quint64 number)
{
    QByteArray bytes(1, char(number % 128));
    while (number /= 128)
        bytes.prepend(char(128 + number % 128));
    return bytes;
}

inline QByteArray PackedName(const QByteArray &name)
{
    return Packed(quint64(name.size())) + name;
}

inline QByteArray ListingEntry(const QByteArray &name, quint64 section, quint64 offset,
                               quint64 length)
{
    return PackedName(name) + Packed(section) + Packed(offset) + Packed(length);
}

inline QByteArray IndexEntry(const QByteArray &name, quint64 chunk)
{
    return PackedName(name) + Packed(chunk);
}

/// A chunk of so many bytes, without the marks at its end, which no reader needs.
inline QByteArray ChunkOf(QByteArray header, const QByteArray &entries, qsizetype size)
{
    const qsizetype used = header.size() + entries.size();
    Store32(header, 4, quint32(size - used));
    return header + entries + QByteArray(size - used, '\0');
}

inline QByteArray ListingOf(const QByteArray &entries, qsizetype size = 256)
{
    return ChunkOf("PMGL" + QByteArray(16, '\0'), entries, size);
}

inline QByteArray IndexOf(const QByteArray &entries, qsizetype size = 256)
{
    return ChunkOf("PMGI" + QByteArray(4, '\0'), entries, size);
}

inline constexpr qsizetype directoryStart = 0x78;
inline constexpr qsizetype chunksStart = directoryStart + 0x54;

/// A file of chunks, all of the same size, and content.
inline QByteArray FileOf(const std::vector<QByteArray> &chunks, int root = -1,
                         const QByteArray &content = {})
{
    QByteArray file = "ITSF" + QByteArray(0x74, '\0') + "ITSP" + QByteArray(0x50, '\0');
    for (const QByteArray &chunk : chunks)
        file += chunk;
    Store32(file, 4, 3);
    Store64(file, 0x48, quint64(directoryStart));
    Store64(file, 0x50, quint64(file.size() - directoryStart));
    Store64(file, 0x58, quint64(file.size()));
    Store32(file, directoryStart + 0x08, 0x54);
    Store32(file, directoryStart + 0x10, quint32(chunks.empty() ? 256 : chunks.front().size()));
    Store32(file, directoryStart + 0x1C, quint32(root));
    return file + content;
}
