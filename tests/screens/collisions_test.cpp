#include "screens/collisions.h"

#include "screens/databases.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Each collision as "X Y WIDTH HEIGHT: REASON".
QStringList Told(const QList<Collision> &collisions)
{
    QStringList told;
    for (const auto &[place, reason] : collisions)
        told += u"%1 %2 %3 %4: %5"_s.arg(QString::number(place.x()), QString::number(place.y()),
                                         QString::number(place.width()),
                                         QString::number(place.height()), reason);
    return told;
}

QStringList CollisionsOf(const QString &type, const QString &question)
{
    return Told(FindCollisions(FormOf({0, u"T"_s, question, type, u"T"_s}, {u"one"_s, u"two"_s})));
}

} // namespace

TEST(Collisions, AQuestionOfALineStopsBeforeButton97)
{
    const QString fits = u"Mark every hazard that you"_s; // 140 pixels
    EXPECT_EQ(CollisionsOf(u"Text"_s, fits), QStringList());
    EXPECT_EQ(CollisionsOf(u"Text"_s, u"How many people are on site?"_s), // 148
              QStringList{u"150 35 8 10: meets button 97"_s});
}

TEST(Collisions, EachTypeLeavesItsQuestionSoManyLines)
{
    const struct {
        QString type, lines, meets;
    } rows[] = {
        {u"Text"_s, u"a\\nb"_s, {}},
        {u"Text"_s, u"a\\nb\\nc"_s, u"10 57 5 10: meets field 2"_s},
        {u"Numeric"_s, u"a\\nb"_s, {}},
        {u"Numeric"_s, u"a\\nb\\nc"_s, u"10 57 5 10: meets field 2"_s},
        {u"Pulldown List"_s, u"a\\nb\\nc"_s, {}},
        {u"Pulldown List"_s, u"a\\nb\\nc\\nd"_s, u"10 70 6 8: meets popup trigger 2"_s},
        {u"Yes/No"_s, u"a\\nb"_s, {}},
        {u"Yes/No"_s, u"a\\nb\\nc"_s, u"10 57 5 10: meets check box 2"_s},
        {u"Signature"_s, u"a\\nb\\nc"_s, {}},
        {u"Signature"_s, u"a\\nb\\nc\\nd"_s, u"10 75 6 3: meets gadget 2"_s},
        {u"Notes"_s, u"a"_s, {}},
        {u"Notes"_s, u"a\\nb"_s, u"10 50 6 6: meets gadget 2"_s},
        {u"Date/Time"_s, u"a\\nb"_s, {}},
        {u"Date/Time"_s, u"a\\nb\\nWhen?"_s, u"24 64 21 3: meets label 4"_s},
        {u"Currency"_s, u"a\\nb"_s, {}},
        {u"Currency"_s, u"a\\nb\\ncost"_s, u"24 64 6 3: meets label 3"_s},
        {u"Scanned Barcode"_s, u"a\\nb"_s, {}},
        {u"Scanned Barcode"_s, u"a\\nb\\nc"_s, u"10 57 5 10: meets field 2"_s},
        {u"Checkboxes"_s, u"a"_s, {}},
        {u"Checkboxes"_s, u"a\\nand"_s, u"13 54 15 2: meets table 2"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE((row.type + u' ' + row.lines).toStdString());
        const QStringList found = CollisionsOf(row.type, row.lines);
        EXPECT_EQ(found.value(0), row.meets);
        EXPECT_EQ(found.isEmpty(), row.meets.isEmpty());
    }
}

TEST(Collisions, ATitleStopsBeforeButton102)
{
    const auto collisionsOf = [](const QString &title) {
        return Told(FindCollisions(FormOf({0, title, u"?"_s, u"Numeric"_s, u"T"_s})));
    };
    const QString wide = QString(12, u'W');                 // 132 pixels
    EXPECT_EQ(collisionsOf(wide + u"nn"_s), QStringList()); // 146
    EXPECT_EQ(collisionsOf(wide + u"nm"_s).size(), 1);      // 149
    EXPECT_EQ(collisionsOf(wide + u"WW"_s).size(), 1);      // 154
    EXPECT_EQ(collisionsOf(wide + u"WWW"_s),
              (QStringList{u"148 3 8 10: meets button 102"_s, u"157 3 3 10: leaves the screen"_s}));
}

TEST(Collisions, ACaptionThatIsTooWideIsCutOff)
{
    const auto collisionsOf = [](const QString &item) {
        return Told(
            FindCollisions(FormOf({0, u"T"_s, u"?"_s, u"Checkboxes"_s, u"T"_s}, {u"a"_s, item})));
    };
    EXPECT_EQ(collisionsOf(QString(15, u'€')), QStringList()); // 120
    EXPECT_EQ(collisionsOf(QString(15, u'€') + u'i'),
              QStringList{u"144 65 3 11: is cut off here"_s});
}

TEST(Collisions, AListThatIsTooWideLeavesTheScreen)
{
    FormObject list = expected::HiddenList(3, 13, 30, 88);
    list.width = 146; // of items of 140
    EXPECT_EQ(Told(FindCollisionsOfList(list)), QStringList());
    list.width = 147;
    EXPECT_EQ(Told(FindCollisionsOfList(list)), QStringList{u"157 29 3 90: leaves the screen"_s});
}

TEST(Collisions, AreBoundedWhereAFormIsMadeUp)
{
    Form form = FormOf({0, u"T"_s, u"a\\nb"_s, u"Text"_s, u"T"_s});
    const FormObject gadget = {.kind = ObjectKind::Gadget,
                               .number = 7,
                               .y = 35,
                               .width = 160,
                               .height = 5,
                               .flags = 0xFFFF};
    for (int i = 0; i < 50; ++i)
        form.objects += gadget;
    EXPECT_EQ(Told(FindCollisions(form)), QStringList(50, u"10 35 6 5: meets gadget 7"_s));
    for (int i = 0; i < 2'450; ++i)
        form.objects += gadget;
    const QStringList many = Told(FindCollisions(form));
    ASSERT_EQ(many.size(), 50);
    EXPECT_EQ(many[48], u"10 35 6 5: meets gadget 7"_s);
    EXPECT_EQ(many[49], u"10 35 6 5: meets gadget 7, and there are more"_s);
}
