#include "help/compiler/help_compiler.h"

#include "help/archive_format.h"
#include "help/compiler/archive_writer.h"
#include "help/little_endian.h"
#include "help/viewer_format.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

using Objects = std::map<QByteArray, QByteArray>;

/// As the archive names its objects.
QByteArray FullName(QAnyStringView name)
{
    return '/' + name.toString().toUtf8();
}

QByteArray ZeroEnded(QAnyStringView text)
{
    return text.toString().toLatin1() + '\0';
}

QByteArray Language()
{
    QByteArray bytes(36, '\0');
    Put(bytes, Field<quint32>{0}, archive::english);
    return bytes;
}

/// What the help file says of itself.
QByteArray SystemObject(const HelpSource &source)
{
    using namespace systemObject;
    const std::pair<Code, QByteArray> items[] = {
        {timeStamp, QByteArray(4, '\0')}, // of no run, so that equal sources give equal bytes
        {compiler, ZeroEnded("HHA Version 4.74.8702")},
        {language, Language()},
        {defaultPage, ZeroEnded(source.defaultPage)},
        {title, ZeroEnded(source.title)},
        {contentsFile, ZeroEnded(source.contents)},
    };
    QByteArray bytes;
    AppendLittle(bytes, quint32(3)); // its version
    for (const auto &[code, data] : items) {
        AppendLittle(bytes, quint16(code));
        AppendLittle(bytes, quint16(data.size()));
        bytes += data;
    }
    return bytes;
}

/// The numbers of the pages, and the texts that they point into.
void AddTopics(Objects &objects, std::span<const HelpTopic> topics)
{
    QByteArray strings(1, '\0'), pairs;
    for (const HelpTopic &topic : topics) {
        AppendLittle(pairs, topic.context);
        AppendLittle(pairs, quint32(strings.size()));
        strings += ZeroEnded(topic.page);
    }
    QByteArray length;
    AppendLittle(length, quint32(pairs.size()));
    objects[FullName(stringsName)] = strings;
    objects[FullName(contextObject::name)] = length + pairs;
}

} // namespace

Result<QByteArray> CompileHelp(const HelpSource &source)
{
    QStringList named{source.defaultPage, source.contents};
    for (const HelpTopic &topic : source.topics)
        named += topic.page;
    for (const QString &page : named)
        if (!source.files.contains(page))
            return Error{u"The help has no file %1."_s.arg(page)};

    Objects objects;
    for (const auto &[name, bytes] : source.files)
        objects[FullName(name)] = bytes;
    objects[FullName(systemObject::name)] = SystemObject(source);
    objects[FullName(bitsName)] = QByteArray();
    AddTopics(objects, source.topics);
    return WriteArchive(objects);
}

} // namespace vellumo
