#include "help/compiler/archive_writer.h"

#include "help/archive_format.h"
#include "help/compiler/archive_directory.h"
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
    for (const auto &[path, bytes] : objects)
        for (qsizetype end = 0; path.startsWith('/') && (end = path.indexOf('/', end)) >= 0; ++end)
            folders.insert(path.first(end + 1));
    return folders;
}

void AppendGuid(QByteArray &bytes, const Guid &guid)
{
    bytes.append(reinterpret_cast<const char *>(guid.data()), qsizetype(guid.size()));
}

QByteArray WriteHeader(qsizetype directorySize, qsizetype contentSize)
{
    constexpr quint64 directoryStart = headerSize + sizeSectionSize;
    const quint64 contentStart = directoryStart + quint64(directorySize);
    constexpr quint32 noTimeStamp = 0;

    QByteArray bytes(headerTag);
    for (const quint32 field : {3u, quint32(headerSize), 1u, noTimeStamp, english})
        AppendLittle(bytes, field);
    AppendGuid(bytes, directoryGuid);
    AppendGuid(bytes, streamGuid);
    for (const quint64 field : {quint64(headerSize), quint64(sizeSectionSize), directoryStart,
                                quint64(directorySize), contentStart})
        AppendLittle(bytes, field);
    Q_ASSERT(bytes.size() == headerSize);

    AppendLittle(bytes, quint32(0x1FE));
    AppendLittle(bytes, quint32(0));
    AppendLittle(bytes, contentStart + quint64(contentSize));
    AppendLittle(bytes, quint64(0));
    return bytes;
}

} // namespace

QByteArray WriteArchive(const std::map<QByteArray, QByteArray> &objects)
{
    auto stored = objects;
    stored["::DataSpace/NameList"] = NameList();

    QByteArray content;
    std::vector<ArchiveEntry> entries;
    for (const auto &[path, bytes] : stored) {
        entries.push_back({path, quint64(content.size()), quint64(bytes.size())});
        content += bytes;
    }
    for (const QByteArray &folder : FoldersOf(stored))
        entries.push_back({folder});

    const QByteArray directory = WriteDirectory(std::move(entries));
    return WriteHeader(directory.size(), content.size()) + directory + content;
}

} // namespace vellumo
