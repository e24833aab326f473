#include "help/compiler/help_compiler.h"

#include "help/archive_format.h"
#include "help/compiler/archive_writer.h"
#include "help/little_endian.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QByteArray ZeroEnded(QAnyStringView text)
{
    return text.toString().toLatin1() + '\0';
}

/// What the help file says of itself: a version and then numbered items.
QByteArray SystemObject(const HelpSource &source)
{
    QByteArray language;
    AppendLittle(language, archive::english);
    language.resize(36, '\0');

    const std::pair<quint16, QByteArray> items[] = {
        {quint16(10), QByteArray(4, '\0')}, // no time stamp
        {quint16(9), ZeroEnded("HHA Version 4.74.8702")},
        {quint16(4), language},
        {quint16(2), ZeroEnded(source.defaultPage)},
        {quint16(3), ZeroEnded(source.title)},
        {quint16(0), ZeroEnded(source.contents)},
    };
    QByteArray bytes;
    AppendLittle(bytes, quint32(3));
    for (const auto &[code, data] : items) {
        AppendLittle(bytes, code);
        AppendLittle(bytes, quint16(data.size()));
        bytes += data;
    }
    return bytes;
}

/// The numbers of the pages, and the texts that they point into.
void AddTopics(std::map<QByteArray, QByteArray> &objects, std::span<const HelpTopic> topics)
{
    QByteArray strings(1, '\0'), pairs;
    for (const HelpTopic &topic : topics) {
        AppendLittle(pairs, topic.context);
        AppendLittle(pairs, quint32(strings.size()));
        strings += ZeroEnded(topic.page);
    }
    QByteArray size;
    AppendLittle(size, quint32(pairs.size()));
    objects["/#STRINGS"] = strings;
    objects["/#IVB"] = size + pairs;
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

    std::map<QByteArray, QByteArray> objects;
    for (const auto &[name, bytes] : source.files)
        objects['/' + name.toUtf8()] = bytes;
    objects["/#SYSTEM"] = SystemObject(source);
    objects["/#ITBITS"] = QByteArray();
    AddTopics(objects, source.topics);
    return WriteArchive(objects);
}

} // namespace vellumo
