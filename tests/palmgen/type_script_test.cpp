#include "palmgen/type_script.h"

#include "support/print.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString head = u"INITIALSTATE 0x00000001\r\nINITIALOBJECTID 2\r\nBegin\r\n"_s;
const QString tail = u"ID 101 BELOW 100 ABOVE 99\r\nID 100 BELOW 2 ABOVE 101\r\nEND\r\n"_s;

} // namespace

TEST(ControlLines, OfEachTypeWithoutItems)
{
    const struct {
        QString type;
        QStringList lines;
    } rows[] = {
        {u"Text"_s,
         {u"FIELD id 2 at (PREVLEFT PREVBOTTOM+10 135 60) UNDERLINED MAXCHARS 255"_s,
          u"MULTIPLELINES GRAFFITISTATEINDICATOR AT (142 126)"_s}},
        {u"Numeric"_s,
         {u"FIELD id 2 at (PREVLEFT PREVBOTTOM+10 50 12) UNDERLINED NUMERIC MAXCHARS 9"_s}},
        {u"Currency"_s,
         {u"LABEL \"$\" id 3 AT (24 64)"_s,
          u"FIELD id 2 at (PREVRIGHT PREVTOP 80 12) UNDERLINED NUMERIC MAXCHARS 10"_s}},
        {u"Notes"_s, {u"GADGET ID 2 AT(4 50 152 88)"_s}},
        {u"Yes/No"_s,
         {u"CHECKBOX \"Yes\" ID 2 AT (PREVLEFT PREVBOTTOM+10 AUTO AUTO) GROUP 1"_s,
          u"CHECKBOX \"No\" ID 3 AT (PREVRIGHT+10 PREVTOP AUTO AUTO) GROUP 1"_s}},
        {u"Date/Time"_s,
         {u"LABEL \"Date:\" id 4 AT (24 64)"_s,
          u"SELECTORTRIGGER \"Select Date\" ID 2 AT (PREVLEFT+28 PREVTOP AUTO AUTO)"_s,
          u"LABEL \"Time:\" id 5 AT (24 84)"_s,
          u"SELECTORTRIGGER \"Select Time\" ID 3 AT (PREVLEFT+28 PREVTOP AUTO AUTO)"_s}},
        {u"Signature"_s, {u"GADGET ID 2     AT (4 75 152 61)"_s}},
        {u"Scanned Barcode"_s,
         {u"FIELD id 2 at (PREVLEFT PREVBOTTOM+10 135 60) UNDERLINED MAXCHARS 255"_s,
          u"MULTIPLELINES GRAFFITISTATEINDICATOR AT (142 126)"_s,
          u"BUTTON \"Scan\" id 3 at (66 119 AUTO AUTO)"_s}},
        {u"text"_s, {u"Wrong Type"_s}},
        {u"Text "_s, {u"Wrong Type"_s}},
        {u""_s, {u"Wrong Type"_s}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.type.toStdString());
        EXPECT_EQ(ControlLines(row.type, u""), row.lines.join(u"\r\n"_s) + u"\r\n"_s);
    }
}

TEST(ControlLines, OfAPulldownList)
{
    const auto lines = [](const QString &list) {
        return u"POPUPTRIGGER \"\" ID 2 AT (10 70 64 12) USABLE LEFTANCHOR\r\n"_s + list +
               u" ID 3 AT (PREVLEFT+3 PREVTOP-40 AUTO AUTO) VISIBLEITEMS 8 NONUSABLE\r\n"
               "POPUPLIST ID 2 3\r\n"_s;
    };
    const struct {
        const char *what;
        QString items, list;
    } rows[] = {
        {"two items", u"Red,Green"_s, u"LIST \"Red\" \"Green\""_s},
        {"a single item", u"Red"_s, u"LIST \"Red\""_s},
        {"an empty piece is kept", u"a,,b"_s, u"LIST \"a\" \"\" \"b\""_s},
        {"two empty pieces", u","_s, u"LIST \"\" \"\""_s},
        {"an empty text has no pieces", u""_s, u"LIST"_s},
        {"blanks and quotes stand as they are", u" 2\" pipe , b"_s,
         u"LIST \" 2\" pipe \" \" b\""_s},
        {"what looks like a placeholder is none", u"%1,%2"_s, u"LIST \"%1\" \"%2\""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ControlLines(u"Pulldown List", row.items), lines(row.list));
    }
}

TEST(ControlLines, OfCheckboxes)
{
    EXPECT_EQ(ControlLines(u"Checkboxes", u"A,B"),
              u"TABLE ID 2 AT (13 54 133 82) ROWS 7 COLUMNS 2 COLUMNWIDTHS 12 120\r\n"
              "SCROLLBAR ID 3  AT (PREVRIGHT+2 PREVTOP-1 7 PREVHEIGHT+2) USABLE VALUE 50 MIN 0 "
              "MAX 100 PAGESIZE 10\r\n"
              "LIST \"A\" \"B\" ID 4 AT (13 PREVTOP AUTO AUTO) VISIBLEITEMS 1 NONUSABLE\r\n"_s);
}

TEST(ControlLines, AnyNumberOfItemsStandsOnOneLine)
{
    const QString lines = ControlLines(u"Pulldown List", QString(u"item,"_s).repeated(999) + u'x');
    EXPECT_EQ(lines.count(u"\"item\""_s), 999);
    EXPECT_EQ(lines.count(u"\r\n"_s), 3);
}

TEST(NavigationBody, PassesThroughASecondControl)
{
    for (const QString &type : {u"Scanned Barcode"_s, u"Yes/No"_s, u"Date/Time"_s}) {
        SCOPED_TRACE(type.toStdString());
        EXPECT_EQ(NavigationBody(type), head +
                                            u"ID 2 BELOW 3\r\n"
                                            "ID 3 BELOW 99 ABOVE 2\r\n"
                                            "ID 99 BELOW 101 ABOVE 3\r\n"_s +
                                            tail);
    }
}

TEST(NavigationBody, GoesStraightOnOtherwise)
{
    for (const QString &type :
         {u"Text"_s, u"Numeric"_s, u"Currency"_s, u"Notes"_s, u"Signature"_s, u"Pulldown List"_s,
          u"Checkboxes"_s, u"yes/no"_s, u"Yes/No "_s, u"Wrong Type"_s, u""_s}) {
        SCOPED_TRACE(type.toStdString());
        EXPECT_EQ(NavigationBody(type),
                  head + u"ID 2 BELOW 100\r\nID 99 BELOW 101 ABOVE 2\r\n"_s + tail);
    }
}
