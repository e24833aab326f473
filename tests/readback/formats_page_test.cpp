// docs/palm-formats.md is held against the code: its tables of types and of objects are true, and
// so is its example.

#include "palmtools/pilrc/compiler.h"
#include "palmtools/pilrc/resource_file.h"
#include "readback/delivered_types.h"
#include "readback/form_reader.h"
#include "readback/object_layouts.h"
#include "readback/palm_database.h"

#include "support/page.h"
#include "support/print.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A number that the page has for an object: its offset, its size, and the member that takes it.
struct Described {
    qsizetype offset, size;
    quint32 ObjectRecord::*member;
};

/// What a cell of the column Others says, such as "16 style (1), 18 group (1)".
QList<Described> Others(const QString &cell)
{
    const QHash<QString, quint32 ObjectRecord::*> members = {
        {u"most characters"_s, &ObjectRecord::maxChars},
        {u"style"_s, &ObjectRecord::style},
        {u"group"_s, &ObjectRecord::group},
        {u"number of items"_s, &ObjectRecord::entries},
        {u"columns"_s, &ObjectRecord::entries},
        {u"rows"_s, &ObjectRecord::rows},
        {u"number of the list"_s, &ObjectRecord::list},
        {u"value"_s, &ObjectRecord::value},
        {u"least"_s, &ObjectRecord::minimum},
        {u"greatest"_s, &ObjectRecord::maximum},
        {u"page"_s, &ObjectRecord::pageSize},
    };
    QList<Described> described;
    for (const QString &part : cell.split(u", "_s, Qt::SkipEmptyParts)) {
        const auto match = QRegularExpression(u"^(\\d+) ([a-z ]+?)( \\((\\d)\\))?$"_s).match(part);
        EXPECT_TRUE(members.contains(match.captured(2))) << part.toStdString();
        described.append({match.captured(1).toInt(),
                          match.captured(4).isEmpty() ? 2 : match.captured(4).toInt(),
                          members.value(match.captured(2))});
    }
    return described;
}

/// All numbers of a row: number, place, flags, font and others.
QList<Described> NumbersOf(const QStringList &row, ObjectKind kind)
{
    const auto offset = [&row](int cell) {
        return row[cell].section(QRegularExpression(u"[ ,]"_s), 0, 0).toInt();
    };
    QList<Described> numbers = Others(row[7]);
    if (!row[3].isEmpty())
        numbers.append({offset(3), 2, &ObjectRecord::number});
    if (!row[4].isEmpty()) {
        numbers.append({offset(4), 2, &ObjectRecord::x});
        numbers.append({offset(4) + 2, 2, &ObjectRecord::y});
        if (kind != ObjectKind::Label && kind != ObjectKind::GraffitiIndicator) {
            numbers.append({offset(4) + 4, 2, &ObjectRecord::width});
            numbers.append({offset(4) + 6, 2, &ObjectRecord::height});
        }
    }
    if (!row[5].isEmpty())
        numbers.append({offset(5), row[5].contains(u"(1)"_s) ? 1 : 2, &ObjectRecord::flags});
    if (!row[6].isEmpty())
        numbers.append({offset(6), 1, &ObjectRecord::font});
    return numbers;
}

} // namespace

TEST(FormatsPage, HasTheTypesOfQuestions)
{
    const QList<QStringList> rows = TableOf(Page(u"palm-formats.md"_s), u"| Type | `ques` |"_s);
    ASSERT_EQ(rows.size(), 10);
    for (const QStringList &row : rows) {
        SCOPED_TRACE(row[0].toStdString());
        const DeliveredType &type = TypeOfName(deliveredTypes, row[0]);
        EXPECT_FALSE(type.name.isEmpty());
        EXPECT_EQ(row[1].toInt(nullptr, 16), type.typeCode);
        EXPECT_EQ(row[2].toInt(nullptr, 16), type.valueCode);
        EXPECT_EQ(row[3] == u"yes"_s, type.ownsItems);
        EXPECT_EQ(row[4] == u"yes"_s, type.hasSecondControl);
    }
}

TEST(FormatsPage, HasTheObjectsOfAForm)
{
    const QList<QStringList> rows =
        TableOf(Page(u"palm-formats.md"_s), u"| Kind | Object | Size |"_s);
    ASSERT_EQ(rows.size(), 10);
    for (const QStringList &row : rows) {
        SCOPED_TRACE(row[1].toStdString());
        const auto kind = ObjectKind(row[0].toUInt());
        const RecordLayout<ObjectRecord> *layout = LayoutOf(kind);
        ASSERT_NE(layout, nullptr);
        QByteArray bytes(row[2].toInt(), '\0');
        const QList<Described> numbers = NumbersOf(row, kind);
        for (const Described &number : numbers)
            bytes[number.offset + number.size - 1] = static_cast<char>(number.offset + 1);
        ByteReader reader(bytes);
        ObjectRecord object{{.kind = kind}};
        layout->Take(reader, object);
        reader.PassEnd();
        EXPECT_EQ(reader.Fault(), QString()) << "the page has a number that the code has not";
        for (const Described &number : numbers)
            EXPECT_EQ(object.*number.member, number.offset + 1);
    }
}

TEST(FormatsPage, HasTheResourceFileOfAScript)
{
    const QString page = Page(u"palm-formats.md"_s);
    const QStringList scripts = ExamplesIn(page, u"rcp"_s), dumps = ExamplesIn(page, u"dump"_s);
    ASSERT_EQ(scripts.size(), 1);
    ASSERT_EQ(dumps.size(), 1);
    const auto compiled = palmtools::CompileScript(scripts[0].toStdString());
    ASSERT_FALSE(compiled.failed);
    const auto file = palmtools::EncodeResourceFile("open.ro", compiled.resources);
    const QByteArray bytes = BytesOfDump(dumps[0]);
    ASSERT_TRUE(file);
    const QByteArray made(file->data(), static_cast<qsizetype>(file->size()));
    EXPECT_EQ(bytes.toHex(' ').toStdString(), made.toHex(' ').toStdString());

    const Result<PalmDatabase> read = ReadDatabase(bytes);
    ASSERT_TRUE(read) << read.error().text.toStdString();
    ASSERT_EQ(read->resources.size(), 3);
    const Result<Form> form = ReadForm(read->resources[1].data);
    ASSERT_TRUE(form) << form.error().text.toStdString();
    ASSERT_EQ(form->objects.size(), 1);
    EXPECT_EQ(form->objects[0].text, "Is it open?");
}
