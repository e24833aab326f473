#include "help/reader/archive.h"

#include "help/archive_format.h"
#include "help/reader/compression_check.h"
#include "help/reader/directory_reader.h"

#include <QFile>

#include <chm_lib.h>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint64 largestObject = 16 << 20;

/// The objects of a file that libchm can be trusted with; it believes every number.
std::optional<ObjectDirectory> ReadSoundDirectory(QIODevice &file)
{
    const auto header = ReadArchiveHeader(file);
    if (!header)
        return std::nullopt;
    auto objects = ReadDirectory(file, *header);
    if (!objects || !IsCompressionSound(file, *header, *objects))
        return std::nullopt;
    return objects;
}

/// All bytes of an object that is not too large, or none of them.
std::optional<QByteArray> Retrieve(chmFile *file, const ObjectPlace &place)
{
    // Looked up by us: libchm would read chunks of the directory again for each name.
    chmUnitInfo unit{};
    unit.space = int(place.section);
    unit.start = place.offset;
    unit.length = place.length;
    QByteArray bytes(qsizetype(place.length), '\0');
    const LONGINT64 read = chm_retrieve_object(
        file, &unit, reinterpret_cast<unsigned char *>(bytes.data()), 0, bytes.size());
    return read == bytes.size() ? std::optional(bytes) : std::nullopt;
}

} // namespace

void Archive::Closer::operator()(chmFile *file) const
{
    chm_close(file);
}

Archive::Archive(QString path, ObjectDirectory objects)
    : m_path(std::move(path)),
      m_objects(std::move(objects)),
      m_file(chm_open(QFile::encodeName(m_path).constData()))
{}

Result<Archive> Archive::Open(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error{file.errorString(), path};
    auto objects = ReadSoundDirectory(file);
    if (!objects)
        return DamagedHelp(path);
    Archive archive(path, std::move(*objects));
    if (!archive.m_file)
        return DamagedHelp(path);
    return archive;
}

Result<QByteArray> Archive::Object(const QString &name) const
{
    const auto place = m_objects.Find('/' + name.toUtf8());
    if (!place)
        return Error{u"The help has no page %1."_s.arg(name), m_path};
    if (place->length > largestObject)
        return Error{u"The page %1 is too large."_s.arg(name), m_path};
    const auto bytes = Retrieve(m_file.get(), *place);
    if (!bytes)
        return Error{u"The page %1 is damaged."_s.arg(name), m_path};
    return *bytes;
}

QString Archive::Locate(QString stored) const
{
    if (stored.size() > archive::longestName)
        return {};
    stored.replace(u'\\', u'/');
    const qsizetype anchor = stored.indexOf(u'#');
    const qsizetype end = anchor < 0 ? stored.size() : anchor;
    const QByteArray path = '/' + QStringView(stored).first(end).toUtf8();
    const QByteArrayView found = m_objects.LongestEnding(path);
    return found.isEmpty() ? QString() : QString::fromUtf8(found.sliced(1)) + stored.sliced(end);
}

Error DamagedHelp(const QString &path)
{
    return {u"This is not a help file, or it is damaged."_s, path};
}

} // namespace vellumo
