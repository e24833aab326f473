// Databases as a generator with a wrong row would make them, and right ones under a wrong row of
// the table that they are held against: neither may pass.

#include "readback/findings.h"
#include "readback/navigation_reader.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr int questions = 10; // of tentypes, one of each type

/// A project whose questions of no list type have items left over. No code page has their letter.
Project WithStrayItems()
{
    Project project = TenTypesProject();
    for (const QuestionRow &question : project.source.Questions().Rows())
        if (!TypeOfName(deliveredTypes, question.Type).ownsItems)
            project.source.Items().Append({question.Id, u"\u03A9"_s});
    return project;
}

using Types = std::array<DeliveredType, 10>;

/// The codes of what is found in the right database under types of which one row is another.
QStringList CodesUnder(size_t row, const std::function<void(DeliveredType &)> &change)
{
    Types types = deliveredTypes;
    change(types[row]);
    return CodesOf(Lines(CheckDatabase(Read(TenTypes()), WithStrayItems(), types)));
}

/// The number of the question of a type in tentypes.
int QuestionOf(const DeliveredType &type)
{
    int number = 0;
    const Project project = TenTypesProject();
    for (const QuestionRow &question : project.source.Questions().Rows()) {
        ++number;
        if (question.Type == type.name)
            return number;
    }
    ADD_FAILURE() << QString(type.name).toStdString();
    return 0;
}

QStringList OneFinding(const QString &code, const QString &field, int question)
{
    return {u"%1 [%2 %3]"_s.arg(code, field).arg(question)};
}

constexpr quint32 FormObject::*objectNumbers[] = {
    &FormObject::number,   &FormObject::x,     &FormObject::y,        &FormObject::width,
    &FormObject::height,   &FormObject::flags, &FormObject::font,     &FormObject::group,
    &FormObject::maxChars, &FormObject::rows,  &FormObject::value,    &FormObject::minimum,
    &FormObject::maximum,  &FormObject::list,  &FormObject::pageSize,
};

} // namespace

TEST(WrongGenerator, IsSeenByEachCodeOfEachType)
{
    const struct {
        QByteArray type;
        quint32 number;
        QString code, field;
    } lists[] = {{"fldt", 1001, u"value-code"_s, u"value kind"_s},
                 {"ques", 1002, u"type-code"_s, u"type"_s}};
    for (const auto &list : lists) {
        const QByteArray right = DataOf(Read(TenTypes()), list.type, list.number);
        for (int question = 1; question <= questions; ++question) {
            for (const char code : QByteArray("\0\1\2\3\4\5\6\7\x8\x9\xA\x10\xFF", 13)) {
                QByteArray codes = right;
                codes[question - 1] = code;
                const QByteArray bytes = WithData(TenTypes(), list.type, list.number,
                                                  [&](const QByteArray &) { return codes; });
                EXPECT_EQ(CodesOf(LinesOf(bytes, TenTypesProject())),
                          codes == right ? QStringList()
                                         : OneFinding(list.code, list.field, question));
            }
        }
    }
}

TEST(WrongGenerator, IsSeenByTheNavigationOfEachType)
{
    const QByteArray ofOne = DataOf(Read(TenTypes()), "fnav", 10);
    const QByteArray ofTwo = DataOf(Read(TenTypes()), "fnav", 6);
    for (const DeliveredType &type : deliveredTypes) {
        const int question = QuestionOf(type);
        const QByteArray bytes =
            WithData(TenTypes(), "fnav", quint32(question),
                     [&](const QByteArray &) { return type.hasSecondControl ? ofOne : ofTwo; });
        EXPECT_EQ(CodesOf(LinesOf(bytes, TenTypesProject())),
                  OneFinding(u"navigation"_s, u"navigation"_s, question));
    }
}

TEST(WrongGenerator, IsSeenByTheFormOfEachType)
{
    constexpr qsizetype formNumber = 40;
    const PalmDatabase database = Read(TenTypes());
    for (quint32 of = 1; of <= questions; ++of) {
        for (quint32 as = 1; as <= questions; ++as) {
            QByteArray form = WithNumber(DataOf(database, "tFRM", as), formNumber, 2, of);
            const QStringList lines =
                LinesOf(WithData(TenTypes(), "tFRM", of, [&](const QByteArray &) { return form; }),
                        TenTypesProject());
            const qsizetype ofTheForm =
                lines.filter(QRegularExpression(u"^form-objects? \\[form %1\\]"_s.arg(of))).size();
            EXPECT_EQ(ofTheForm > 0, of != as) << of << " as " << as;
        }
    }
}

TEST(WrongTable, IsNoneWhereNothingIsChanged)
{
    EXPECT_EQ(CodesUnder(0, [](DeliveredType &) {}), QStringList());
}

TEST(WrongTable, IsSeenByEachColumnOfEachRow)
{
    for (size_t row = 0; row < deliveredTypes.size(); ++row) {
        const DeliveredType &right = deliveredTypes[row];
        SCOPED_TRACE(QString(right.name).toStdString());
        const int question = QuestionOf(right);
        EXPECT_TRUE(CodesUnder(row, [](DeliveredType &type) {
                        type.name = "Txet"_L1;
                    }).contains(u"unknown-type [type %1]"_s.arg(question)));
        EXPECT_EQ(CodesUnder(row, [](DeliveredType &type) { ++type.typeCode; }),
                  OneFinding(u"type-code"_s, u"type"_s, question));
        EXPECT_EQ(CodesUnder(row, [](DeliveredType &type) { ++type.valueCode; }),
                  OneFinding(u"value-code"_s, u"value kind"_s, question));
        EXPECT_EQ(
            CodesUnder(row,
                       [](DeliveredType &type) { type.hasSecondControl = !type.hasSecondControl; }),
            OneFinding(u"navigation"_s, u"navigation"_s, question));
        EXPECT_EQ(CodesUnder(row, [](DeliveredType &type) { type.ownsItems = !type.ownsItems; }),
                  OneFinding(right.ownsItems ? u"item-count"_s : u"not-encodable"_s, u"item list"_s,
                             question));
    }
}

TEST(WrongTable, IsSeenByEachObjectOfEachRow)
{
    for (size_t row = 0; row < deliveredTypes.size(); ++row) {
        const qsizetype count = deliveredTypes[row].objects.size();
        for (qsizetype i = 0; i < count; ++i) {
            SCOPED_TRACE((QString(deliveredTypes[row].name) + u' ' +
                          Describe(deliveredTypes[row].objects[i]))
                             .toStdString());
            const auto seen = [&](const std::function<void(FormObject &)> &change) {
                return !CodesUnder(row, [&](DeliveredType &type) {
                            change(type.objects[i]);
                        }).isEmpty();
            };
            for (const auto number : objectNumbers)
                EXPECT_TRUE(seen([&](FormObject &object) { object.*number += 200; }));
            EXPECT_TRUE(seen([](FormObject &object) { object.text += 'x'; }));
            EXPECT_TRUE(seen([](FormObject &object) { object.columnWidths += 1; }));
            EXPECT_TRUE(seen([](FormObject &object) { object.kind = ObjectKind(4); }));
            if (deliveredTypes[row].objects[i].kind == ObjectKind::Control) {
                EXPECT_TRUE(seen([](FormObject &object) { object.style ^= 1; }));
            }
            EXPECT_FALSE(
                CodesUnder(row, [&](DeliveredType &type) { type.objects.removeAt(i); }).isEmpty());
        }
    }
}
