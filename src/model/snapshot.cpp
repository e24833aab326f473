#include "model/snapshot.h"

#include "model/form_fields.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// The bytes: the mark, the SHA-256 of what follows, and that as Qt's data stream has it. Another
// order or another meaning takes another mark.

constexpr QByteArrayView mark{"Vellumo rescue 1"};
constexpr auto streamVersion = QDataStream::Qt_6_0;
constexpr auto hashMethod = QCryptographicHash::Sha256;
constexpr qsizetype hashSize = 32;

QDataStream &operator<<(QDataStream &stream, const QuestionRow &row)
{
    return stream << row.Order << row.Title << row.Question << row.Type << row.ColumnName << row.Id;
}

QDataStream &operator>>(QDataStream &stream, QuestionRow &row)
{
    return stream >> row.Order >> row.Title >> row.Question >> row.Type >> row.ColumnName >> row.Id;
}

QDataStream &operator<<(QDataStream &stream, const ItemRow &row)
{
    return stream << row.Id << row.Item;
}

QDataStream &operator>>(QDataStream &stream, ItemRow &row)
{
    return stream >> row.Id >> row.Item;
}

/// How many there are, and each of them.
template <typename List> void WriteList(QDataStream &stream, const List &list)
{
    stream << static_cast<qint64>(list.size());
    for (const auto &one : list)
        stream << one;
}

/// However many there are said to be, no more are taken than there are bytes for.
template <typename One, typename Take> void ReadList(QDataStream &stream, const Take &take)
{
    qint64 count = 0;
    stream >> count;
    if (count < 0)
        stream.setStatus(QDataStream::ReadCorruptData);
    for (; count > 0 && stream.status() == QDataStream::Ok; --count) {
        One one;
        stream >> one;
        take(std::move(one));
    }
}

void WriteProjectTo(QDataStream &stream, const Project &project)
{
    for (const FormFieldRow &row : formFields)
        stream << project.*row.text;
    WriteList(stream, project.TitleList);
    stream << project.source.MaxId();
    WriteList(stream, project.source.Questions().Rows());
    WriteList(stream, project.source.Items().Rows());
}

void ReadProjectFrom(QDataStream &stream, Project &project)
{
    for (const FormFieldRow &row : formFields)
        stream >> project.*row.text;
    project.TitleList.clear();
    ReadList<QString>(stream, [&](QString title) { project.TitleList += std::move(title); });
    int maxId = 0;
    stream >> maxId;
    project.source.SetMaxId(maxId);
    Table<QuestionRow> &questions = project.source.Questions();
    ReadList<QuestionRow>(stream, [&](QuestionRow row) { questions.Append(std::move(row)); });
    Table<ItemRow> &items = project.source.Items();
    ReadList<ItemRow>(stream, [&](ItemRow row) { items.Append(std::move(row)); });
    questions.MoveFirst();
    items.MoveFirst();
}

} // namespace

QByteArray WriteSnapshot(const Snapshot &snapshot)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << snapshot.path << snapshot.taken.toMSecsSinceEpoch();
    WriteProjectTo(stream, snapshot.project);
    stream << snapshot.fingerprint;
    return mark.toByteArray() + QCryptographicHash::hash(content, hashMethod) + content;
}

Result<Snapshot> ReadSnapshot(const QByteArray &bytes)
{
    const Error damaged = {u"This is no rescue copy, or it is damaged."_s};
    const qsizetype head = mark.size() + hashSize;
    if (bytes.size() < head || !bytes.startsWith(mark))
        return damaged;
    const QByteArray content = bytes.sliced(head);
    if (QCryptographicHash::hash(content, hashMethod) != bytes.sliced(mark.size(), hashSize))
        return damaged;

    Snapshot snapshot;
    qint64 taken = 0;
    QDataStream stream(content);
    stream.setVersion(streamVersion);
    stream >> snapshot.path >> taken;
    ReadProjectFrom(stream, snapshot.project);
    stream >> snapshot.fingerprint;
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return damaged;
    snapshot.taken = QDateTime::fromMSecsSinceEpoch(taken);
    return snapshot;
}

} // namespace vellumo
