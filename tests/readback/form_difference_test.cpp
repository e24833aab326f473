#include "readback/form_difference.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(FormDifference, TellsEachNumberOfTheHeader)
{
    const struct {
        quint32 Form::*number;
        QString name;
    } rows[] = {{&Form::number, u"number"_s}, {&Form::x, u"left edge"_s},
                {&Form::y, u"top edge"_s},    {&Form::width, u"width"_s},
                {&Form::height, u"height"_s}, {&Form::frame, u"frame"_s}};
    for (const auto &[number, name] : rows) {
        Form form;
        form.*number = 7;
        EXPECT_EQ(HeaderDifferences(form, {}),
                  QStringList{u"the %1 of the form is 7 instead of 0"_s.arg(name)});
    }
    EXPECT_EQ(HeaderDifferences({.flags = 0x8000}, {}),
              QStringList{u"the flag word of the form is 0x8000 instead of 0x0000"_s});
    EXPECT_EQ(HeaderDifferences({.number = 3}, {.number = 3}), QStringList());
}

TEST(FormDifference, TellsEachNumberOfAnObject)
{
    const struct {
        quint32 FormObject::*number;
        QString name;
    } rows[] = {{&FormObject::x, u"left edge"_s},
                {&FormObject::y, u"top edge"_s},
                {&FormObject::width, u"width"_s},
                {&FormObject::height, u"height"_s},
                {&FormObject::font, u"font"_s},
                {&FormObject::group, u"group"_s},
                {&FormObject::maxChars, u"longest content"_s},
                {&FormObject::rows, u"number of rows"_s},
                {&FormObject::value, u"value"_s},
                {&FormObject::minimum, u"minimum"_s},
                {&FormObject::maximum, u"maximum"_s},
                {&FormObject::pageSize, u"page size"_s},
                {&FormObject::list, u"list"_s}};
    const FormObject expected = {.kind = ObjectKind::ScrollBar, .number = 3};
    for (const auto &[number, name] : rows) {
        FormObject found = expected;
        found.*number = 7;
        EXPECT_EQ(ObjectDifferences(found, expected),
                  QStringList{u"the %1 of scroll bar 3 is 7 instead of 0"_s.arg(name)});
    }
    FormObject found = expected;
    found.flags = 0x80;
    EXPECT_EQ(ObjectDifferences(found, expected),
              QStringList{u"the flag word of scroll bar 3 is 0x0080 instead of 0x0000"_s});
}

TEST(FormDifference, TellsSeveralInTheirOrder)
{
    const FormObject expected = {.kind = ObjectKind::Table, .number = 2, .columnWidths = {12, 120}};
    const FormObject found = {
        .kind = ObjectKind::Table, .number = 2, .y = 1, .rows = 6, .columnWidths = {12}};
    EXPECT_EQ(ObjectDifferences(found, expected),
              (QStringList{u"the top edge of table 2 is 1 instead of 0"_s,
                           u"the number of rows of table 2 is 6 instead of 0"_s,
                           u"the columns of table 2 differ"_s}));
}

TEST(FormDifference, TellsTheWidthOfAListWhereItsItemsAreRight)
{
    const FormObject list = {
        .kind = ObjectKind::List, .number = 3, .width = 16, .items = {"Wren", "Robin"}};
    FormObject found = list;
    EXPECT_EQ(ObjectDifferences(found, list), QStringList());
    for (const quint32 width : {15u, 17u, 160u}) {
        found.width = width;
        EXPECT_EQ(ObjectDifferences(found, list),
                  QStringList{u"the width of list 3 is %1 instead of 16"_s.arg(width)});
    }
    found.items = {"Wren"};
    EXPECT_EQ(ObjectDifferences(found, list), QStringList()) << "it follows from the items";
    found.height = 1;
    EXPECT_EQ(ObjectDifferences(found, list),
              QStringList{u"the height of list 3 is 1 instead of 0"_s});
}
