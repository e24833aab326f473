#include "readback/form_reader.h"

#include "readback/databases.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr qsizetype firstEntry = 68;

QByteArray FormBytes(const QString &database, quint32 number = 1)
{
    return DataOf(Read(Golden(database)), "tFRM", number);
}

Form ReadOk(const QByteArray &resource)
{
    const Result<Form> form = ReadForm(resource);
    if (form)
        return *form;
    ADD_FAILURE() << form.error().text.toStdString();
    return {};
}

/// The error, or "read".
QString FormRefusal(const QByteArray &resource)
{
    const Result<Form> form = ReadForm(resource);
    return form ? u"read"_s : form.error().text;
}

/// The object of a form of tentypes, found by its description.
FormObject TenTypesObject(quint32 form, const QString &described)
{
    for (const FormObject &object : ReadOk(FormBytes(u"tentypes"_s, form)).objects) {
        if (Describe(object) == described)
            return object;
    }
    ADD_FAILURE() << described.toStdString();
    return {};
}

} // namespace

TEST(FormReader, DecodesEveryGoldenFormToItsLastByte)
{
    int forms = 0;
    for (const QString &name : GoldenNames()) {
        const PalmDatabase database = Read(Golden(name));
        for (const PalmResource &resource : database.resources) {
            if (resource.type != "tFRM")
                continue;
            SCOPED_TRACE((name + u' ' + Describe(resource.Key())).toStdString());
            EXPECT_EQ(FormRefusal(resource.data), u"read"_s);
            EXPECT_NE(FormRefusal(resource.data + '\0'), u"read"_s);
            EXPECT_NE(FormRefusal(resource.data.chopped(1)), u"read"_s);
            EXPECT_EQ(ReadOk(resource.data).number, resource.number);
            ++forms;
        }
    }
    EXPECT_GT(forms, 170);
}

TEST(FormReader, ReadsTheHeader)
{
    const Form form = ReadOk(FormBytes(u"text"_s));
    EXPECT_EQ(form.number, 1u);
    EXPECT_EQ(form.x, 0u);
    EXPECT_EQ(form.y, 0u);
    EXPECT_EQ(form.width, 160u);
    EXPECT_EQ(form.height, 160u);
    EXPECT_EQ(form.frame, 0u);
    EXPECT_EQ(form.flags, 0x8000u);
    QStringList objects;
    for (const FormObject &object : form.objects)
        objects += Describe(object);
    EXPECT_EQ(objects, (QStringList{u"title"_s, u"label 1"_s, u"field 2"_s, u"Graffiti indicator"_s,
                                    u"button 97"_s, u"field 98"_s, u"button 99"_s, u"button 100"_s,
                                    u"button 101"_s, u"button 102"_s}));
}

TEST(FormReader, ReadsWhatTextsAndButtonsHold)
{
    EXPECT_EQ(TenTypesObject(2, u"title"_s).text, "Wind");

    const FormObject label = TenTypesObject(2, u"label 1"_s);
    EXPECT_EQ(label.text, "How strong is the wind?");
    EXPECT_EQ(label.x, 10u);
    EXPECT_EQ(label.y, 34u);
    EXPECT_EQ(label.flags, 0x8000u);
    EXPECT_EQ(label.font, 1u);

    const FormObject field = TenTypesObject(9, u"field 2"_s);
    EXPECT_EQ(field.width, 50u);
    EXPECT_EQ(field.height, 12u);
    EXPECT_EQ(field.flags, 0xB242u);
    EXPECT_EQ(field.maxChars, 9u);

    const FormObject button = TenTypesObject(9, u"button 97"_s);
    EXPECT_EQ(button.flags, 0xC800u);
    EXPECT_EQ(button.font, 3u);
    EXPECT_EQ(button.text, "\v");
    EXPECT_EQ(TenTypesObject(6, u"check box 3"_s).group, 1u);
}

TEST(FormReader, ReadsWhatListsTablesAndDrawingsHold)
{
    const FormObject list = TenTypesObject(2, u"list 3"_s);
    EXPECT_EQ(list.items, (QList<QByteArray>{"Calm", "Breeze", "Strong wind", "Storm"}));
    EXPECT_EQ(list.flags, 0x4000u);
    EXPECT_EQ(list.height, 88u);
    EXPECT_EQ(TenTypesObject(2, u"popup list 2"_s).list, 3u);

    const FormObject table = TenTypesObject(1, u"table 2"_s);
    EXPECT_EQ(table.rows, 7u);
    EXPECT_EQ(table.columnWidths, (QList<quint32>{12, 120}));
    const FormObject bar = TenTypesObject(1, u"scroll bar 3"_s);
    EXPECT_EQ(bar.x, 148u);
    EXPECT_EQ(bar.flags, 0x80u);
    EXPECT_EQ(bar.value, 50u);
    EXPECT_EQ(bar.maximum, 100u);
    EXPECT_EQ(bar.pageSize, 10u);

    EXPECT_EQ(TenTypesObject(10, u"Graffiti indicator"_s).x, 142u);
    const FormObject gadget = TenTypesObject(7, u"gadget 2"_s);
    EXPECT_EQ(gadget.flags, 0xC000u);
    EXPECT_EQ(gadget.y, 50u);
    EXPECT_EQ(gadget.height, 88u);
}

TEST(FormReader, RefusesWhatDoesNotAddUp)
{
    const QByteArray text = FormBytes(u"text"_s);
    const QByteArray checkboxes = FormBytes(u"checkboxes"_s);
    const qsizetype table = 184;
    const qsizetype firstRow = table + 74 + 2LL * 18;
    const struct {
        const char *what;
        QByteArray form;
        QString reason;
    } rows[] = {
        {"nothing", "", u"it ends too early, at byte 0"_s},
        {"other window flags", WithNumber(text, 8, 2, 0x1000),
         u"the number at byte 8 is 4096 instead of 4608"_s},
        {"something in the header", WithNumber(text, 61, 1, 1), u"byte 61 is not zero"_s},
        {"a missing object", WithNumber(text, 62, 2, 9),
         u"its title should begin at byte 122, but the directory has 128"_s},
        {"more objects than there are", WithNumber(text, 62, 2, 0xFFFF), u"byte 141 is not zero"_s},
        {"an object of no kind", WithNumber(text, firstEntry, 1, 4),
         u"there is no kind of object 4"_s},
        {"something beside a kind", WithNumber(text, firstEntry + 1, 1, 1),
         u"byte 69 is not zero"_s},
        {"an offset out of order", WithNumber(text, firstEntry + 8, 4, 128),
         u"its label should begin at byte 148, but the directory has 128"_s},
        {"an offset outside", WithNumber(text, firstEntry + 8, 4, 0xFFFFFFFF),
         u"its label should begin at byte 148, but the directory has 4294967295"_s},
        {"something in the padding", WithNumber(text, 147, 1, 'x'), u"byte 147 is not zero"_s},
        {"another kind", WithNumber(text, firstEntry + 12, 1, 12),
         u"its Graffiti indicator should begin at byte 196, but the directory has 216"_s},
        {"another height of a row", WithNumber(checkboxes, firstRow + 2, 2, 12),
         u"the number at byte 296 is 12 instead of 11"_s},
        {"more cells than there are", WithNumber(checkboxes, table + 12, 2, 0xFFFF),
         u"byte 297 is not zero"_s},
    };
    ASSERT_EQ(ReadOk(checkboxes).objects[2].kind, ObjectKind::Table);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(FormRefusal(row.form), row.reason);
    }
}

TEST(FormReader, RefusesEveryTruncation)
{
    for (const QString &name : {u"pulldown"_s, u"checkboxes"_s}) {
        const QByteArray form = FormBytes(name);
        for (qsizetype size = 0; size < form.size(); ++size)
            ASSERT_NE(FormRefusal(form.first(size)), u"read"_s) << size;
    }
}
