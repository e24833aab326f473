#include "screens/screen_drawing.h"

#include "screens/databases.h"
#include "screens/form_parts.h"
#include "screens/shapes.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList DrawnScreen(const Form &form, int count = 1)
{
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    DrawScreen(writer, {form, count}, {u"q"_s, u"T"_s, u"D"_s});
    return ShapesOf(xml);
}

QStringList DrawnList(const Form &form)
{
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    DrawOpenedList(writer, {form, 1}, *PopupListOf(form), {u"q"_s, u"T"_s, u"D"_s});
    return ShapesOf(xml);
}

/// What stands on every form, in front of what is its own.
QStringList Head(int tab, const QString &title)
{
    return {u"svg q-title"_s,
            u"paper 0 0 160 160"_s,
            u"tab 0 13 160 2"_s,
            u"tab 1 0 %1 1"_s.arg(tab - 2),
            u"tab 0 1 %1 12"_s.arg(tab),
            u"bold title 2 11 %1: %2"_s.arg(tab - 4).arg(title)};
}

/// And behind that; the viewer writes the position.
QStringList Tail(const QString &position)
{
    return {u"paper 150 33 8 13"_s,
            u"frame M151.5 36.5h5v5l-2 2h-3zm5 5h-2v2"_s,
            u"plain sample 11 30 "_s + position,
            u"frame 1.5 143.5 36 16"_s,
            u"plain 10 154 19: Prev"_s,
            u"frame 121.5 143.5 36 16"_s,
            u"plain 129 154 21: Next"_s,
            u"frame 63.5 143.5 36 16"_s,
            u"plain 71 154 21: Clear"_s,
            u"paper 148 2 8 11"_s,
            u"frame 148.5 3.5 6 8"_s,
            u"ink 150 5 3 1"_s,
            u"ink 150 7 3 1"_s,
            u"ink 150 9 2 1"_s};
}

QStringList ArrowDown(int x, int y)
{
    QStringList rows;
    for (int row = 0; row < 4; ++row)
        rows += u"ink %1 %2 %3 1"_s.arg(x + row).arg(y + row).arg(7 - 2 * row);
    return rows;
}

const QStringList fiveLines = {u"dots M10 66.5h135"_s,  u"dots M10 77.5h135"_s,
                               u"dots M10 88.5h135"_s,  u"dots M10 99.5h135"_s,
                               u"dots M10 110.5h135"_s, u"area 142.5 126.5 5 9"_s};

const QStringList scrollBar = QStringList{u"ink 151 53 1 1"_s, u"ink 150 54 3 1"_s,
                                          u"ink 149 55 5 1"_s, u"ink 148 56 7 1"_s} +
                              ArrowDown(148, 133) +
                              QStringList{u"rail 150 58 3 74"_s, u"ink 150 92 3 6"_s};

} // namespace

// A row for each question of the sample, which has every type once.
TEST(ScreenDrawing, HasEachObjectInItsPlace)
{
    const struct {
        int tab;
        QString title, position;
        QStringList own, misfits = {};
    } rows[] = {
        {52, u"Inspector"_s, u"28: 1 of 10"_s,
         QStringList{u"bold 10 43 119: Who is carrying out this"_s,
                     u"bold 10 54 58: inspection?"_s} +
             fiveLines},
        {33,
         u"When"_s,
         u"28: 2 of 10"_s,
         {u"bold 10 43 151: When did the visit take place?"_s, u"plain 24 73 22: Date:"_s,
          u"dots 51.5 63.5 54 13"_s, u"plain 55 73 47: Select Date"_s, u"plain 24 93 23: Time:"_s,
          u"dots 51.5 83.5 55 13"_s, u"plain 55 93 48: Select Time"_s},
         {u"misfit 150.5 35.5 7 9"_s, u"misfit 157.5 35.5 2 9"_s}},
        {34, u"State"_s, u"28: 3 of 10"_s,
         QStringList{u"bold 10 43 129: In which state is the site?"_s} + ArrowDown(10, 73)},
        {53, u"Asset tag"_s, u"28: 4 of 10"_s,
         QStringList{u"bold 10 43 123: Scan the tag on the main"_s, u"bold 10 54 27: gate."_s} +
             fiveLines + QStringList{u"frame 65.5 118.5 32 13"_s, u"plain 72 128 19: Scan"_s}},
        {51,
         u"Crew size"_s,
         u"28: 5 of 10"_s,
         {u"bold 10 43 148: How many people are on site?"_s, u"dots M10 66.5h50"_s},
         {u"misfit 150.5 35.5 7 9"_s}},
        {44,
         u"Damage"_s,
         u"28: 6 of 10"_s,
         {u"bold 10 43 143: Estimated cost of damage, if"_s, u"bold 10 54 18: any"_s,
          u"plain 24 73 6: $"_s, u"dots M30 74.5h80"_s},
         {u"misfit 150.5 35.5 2 9"_s}},
        {44,
         u"Fenced?"_s,
         u"28: 7 of 10"_s,
         {u"bold 10 43 124: Is the perimeter fenced?"_s, u"frame 12.5 58.5 7 7"_s,
          u"plain 28 65 15: Yes"_s, u"frame 55.5 58.5 7 7"_s, u"plain 71 65 11: No"_s}},
        {45,
         u"Hazards"_s,
         u"28: 8 of 10"_s,
         QStringList{u"bold 10 43 140: Mark every hazard that you"_s, u"bold 10 54 17: see"_s,
                     u"frame 15.5 56.5 7 7"_s, u"plain 26 63 51: Open trench"_s,
                     u"frame 15.5 67.5 7 7"_s, u"plain 26 74 61: Overhead lines"_s,
                     u"frame 15.5 78.5 7 7"_s, u"plain 26 85 29: Traffic"_s,
                     u"frame 15.5 89.5 7 7"_s, u"plain 26 96 36: Asbestos"_s,
                     u"frame 15.5 100.5 7 7"_s, u"plain 26 107 26: Water"_s} +
             scrollBar,
         {u"misfit 13.5 54.5 13 1"_s}},
        {39,
         u"Sketch"_s,
         u"28: 9 of 10"_s,
         {u"bold 10 43 92: Draw the site plan"_s, u"area 4.5 50.5 151 87"_s}},
        {46,
         u"Sign-off"_s,
         u"33: 10 of 10"_s,
         {u"bold 10 43 127: Foreman, please sign here"_s, u"area 4.5 75.5 151 60"_s}},
    };
    const QList<Screen> screens = ScreensOfProject(u"SiteVisit"_s).screens;
    ASSERT_EQ(screens.size(), 10);
    for (qsizetype i = 0; i < screens.size(); ++i) {
        SCOPED_TRACE(rows[i].title.toStdString());
        EXPECT_EQ(DrawnScreen(*screens[i].form, 10), Head(rows[i].tab, rows[i].title) +
                                                         rows[i].own + Tail(rows[i].position) +
                                                         rows[i].misfits);
    }
}

TEST(ScreenDrawing, AnOpenedListLiesOverTheOthers)
{
    const QList<Screen> screens = ScreensOfProject(u"SiteVisit"_s).screens;
    ASSERT_EQ(screens.size(), 10);
    const QStringList shapes = DrawnList(*screens[2].form);
    EXPECT_EQ(shapes.last(5),
              (QStringList{u"frame 12.5 29.5 55 89"_s, u"plain 14 39 31: Oregon"_s,
                           u"plain 14 50 48: Washington"_s, u"plain 14 61 22: Idaho"_s,
                           u"plain 14 72 31: Nevada"_s}));
}

TEST(ScreenDrawing, AnOpenedListHasEightRowsAndAnArrowWhereThereAreMore)
{
    QStringList items;
    for (int i = 1; i <= 8; ++i)
        items += u"item %1"_s.arg(i);
    const QuestionRow question = {0, u"T"_s, u"?"_s, u"Pulldown List"_s, u"T"_s};
    EXPECT_TRUE(DrawnList(FormOf(question, items)).last().endsWith(u": item 8"));
    EXPECT_TRUE(DrawnList(FormOf(question, items)).last().startsWith(u"plain 14 116 "));
    const QStringList more = DrawnList(FormOf(question, items + QStringList{u"item 9"_s}));
    EXPECT_EQ(more.filter(u": item"_s).size(), 8);
    EXPECT_EQ(more.sliced(more.size() - 6),
              (QStringList{u"paper 35 108 9 9"_s, u"ink 38 109 3 4"_s, u"ink 36 113 7 1"_s,
                           u"ink 37 114 5 1"_s, u"ink 38 115 3 1"_s, u"ink 39 116 1 1"_s}))
        << "in the corner of a list that is 32 wide and ends at 45, 118";
}

TEST(ScreenDrawing, AScrollBarIsTheSameFromWhateverItCounts)
{
    Form form = FormOf({0, u"T"_s, u"?"_s, u"Checkboxes"_s, u"T"_s}, {u"item"_s});
    const QStringList before = DrawnScreen(form);
    ASSERT_TRUE(before.contains(scrollBar.last())) << "with its thumb";
    for (FormObject &object : form.objects) {
        if (object.kind == ObjectKind::ScrollBar) {
            object.value += 5;
            object.minimum += 5;
            object.maximum += 5;
        }
    }
    EXPECT_EQ(DrawnScreen(form), before);
}

TEST(ScreenDrawing, ATableShowsSevenRowsAndCutsACaptionThatIsTooWide)
{
    QStringList items = {QString(20, u'W')};
    for (int i = 2; i <= 8; ++i)
        items += u"item %1"_s.arg(i);
    const QStringList shapes =
        DrawnScreen(FormOf({0, u"T"_s, u"?"_s, u"Checkboxes"_s, u"T"_s}, items));
    EXPECT_EQ(shapes.filter(u": item"_s).size(), 6);
    EXPECT_TRUE(shapes.contains(u"paper 147 54 160 11"_s)) << "121 pixels from 26 on are drawn";
    EXPECT_TRUE(shapes.contains(u"misfit 144.5 54.5 2 10"_s));
}

TEST(ScreenDrawing, HiddenObjectsAreNotDrawn)
{
    Form form = FormOf({0, u"T"_s, u"?"_s, u"Signature"_s, u"T"_s});
    const qsizetype before = DrawnScreen(form).size();
    form.objects[2].flags = 0;
    EXPECT_EQ(DrawnScreen(form).size(), before - 1);
}

TEST(ScreenDrawing, WhatIsFarOutsideTakesNoTime)
{
    Form form = FormOf({0, u"T"_s, u"?"_s, u"Text"_s, u"T"_s});
    for (FormObject &object : form.objects) {
        object.y = 65535;
        object.height = 65535;
    }
    EXPECT_LT(DrawnScreen(form).size(), 40);
    for (FormObject &object : form.objects)
        object.y = 0;
    EXPECT_LT(DrawnScreen(form).size(), 60) << "a field as high as the screen has 14 lines";
}

TEST(ScreenDrawing, IsTold)
{
    EXPECT_EQ(
        DescribeForm(FormOf({0, u"Open?"_s, u"Is it <open>?"_s, u"Yes/No"_s, u"T"_s})),
        u"title \"Open?\", label 1 \"Is it <open>?\", check box 2 \"Yes\", check box 3 \"No\", "
        "button 97, field 98, button 99 \"Prev\", button 100 \"Next\", button 101 \"Clear\", "
        "button 102."_s);
}

TEST(ScreenDrawing, IsToldWithTheCaptionsOfItsCheckBoxes)
{
    const QStringList items = {u"Open <trench>"_s, u"Traffic"_s};
    EXPECT_TRUE(DescribeForm(FormOf({0, u"T"_s, u"?"_s, u"Checkboxes"_s, u"T"_s}, items))
                    .endsWith(u", captions \"Open <trench>\", \"Traffic\"."));
    EXPECT_FALSE(DescribeForm(FormOf({0, u"T"_s, u"?"_s, u"Pulldown List"_s, u"T"_s}, items))
                     .contains(u"Traffic"))
        << "its opened list has a drawing of its own";
    for (const ObjectKind lost : {ObjectKind::Table, ObjectKind::List}) {
        Form form = FormOf({0, u"T"_s, u"?"_s, u"Checkboxes"_s, u"T"_s}, items);
        ASSERT_TRUE(
            form.objects.removeIf([&](const FormObject &object) { return object.kind == lost; }));
        EXPECT_FALSE(DescribeForm(form).contains(u"captions")) << "nothing shows them, or has them";
    }
}
