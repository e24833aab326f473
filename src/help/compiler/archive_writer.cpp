#include "help/compiler/archive_writer.h"

#include "help/archive_format.h"
#include "help/compiler/directory_writer.h"
#include "help/little_endian.h"

#include <QStringView>

#include <set>

namespace vellumo {

using namespace archive;

namespace {

/// The list of the ways in which objects are stored; there is one.
QByteArray NameList()
{
    constexpr QStringView name = u"Uncompressed";
    QByteArray list;
    AppendLittle(list, quint16(name.size()));
    for (const QChar character : name)
        AppendLittle(list, character.unicode());
    AppendLittle(list, quint16(0));

    QByteArray bytes;
    AppendLittle(bytes, quint16((4 + list.size()) / 2));
    AppendLittle(bytes, quint16(1));
    return bytes + list;
}

/// Every folder above the objects, "/" too.
std::set<QByteArray> FoldersOf(const std::map<QByteArray, QByteArray> &objects)
{
    std::set<QByteArray> folders{"/"};
    for (const auto &[path, bytes] : objects) {
        if (!path.startsWith('/'))
            continue; // of the archive itself
        for (qsizetype slash = 0; slash >= 0; slash = path.indexOf('/', slash + 1))
            folders.insert(path.first(slash + 1));
    }
    return folders;
}

/// The header, and the sizes behind it.
QByteArray WriteHeader(quint64 directoryLength, quint64 contentLength)
{
    constexpr quint64 sizesStart = header::size, directoryStart = sizesStart + sizes::size;
    const quint64 contentStart = directoryStart + directoryLength;

    QByteArray bytes = Tagged(header::tag, header::size);
    Put(bytes, header::version, 3);
    Put(bytes, header::length, quint32(header::size));
    Put(bytes, header::alwaysOne, 1);
    Put(bytes, header::timeStamp, 0); // of no run, so that equal objects give equal bytes
    Put(bytes, header::language, english);
    PutGuid(bytes, header::directoryGuid, directoryGuid);
    PutGuid(bytes, header::streamGuid, streamGuid);
    Put(bytes, header::sizesStart, sizesStart);
    Put(bytes, header::sizesLength, quint64(sizes::size));
    Put(bytes, header::directoryStart, directoryStart);
    Put(bytes, header::directoryLength, directoryLength);
    Put(bytes, header::contentStart, contentStart);

    QByteArray sizeTable(sizes::size, '\0');
    Put(sizeTable, sizes::always0x1FE, 0x1FE);
    Put(sizeTable, sizes::fileSize, contentStart + contentLength);
    return bytes + sizeTable;
}

} // namespace

QByteArray WriteArchive(const std::map<QByteArray, QByteArray> &objects)
{
    auto stored = objects;
    stored[nameListName.toByteArray()] = NameList();

    QByteArray content;
    std::vector<ArchiveEntry> entries;
    for (const auto &[path, bytes] : stored) {
        entries.push_back({path, quint64(content.size()), quint64(bytes.size())});
        content += bytes;
    }
    for (const QByteArray &folder : FoldersOf(stored))
        entries.push_back({folder});

    const QByteArray directory = WriteDirectory(std::move(entries));
    return WriteHeader(quint64(directory.size()), quint64(content.size())) + directory + content;
}

} // namespace vellumo
