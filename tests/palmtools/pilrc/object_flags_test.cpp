#include "palmtools/pilrc/object_flags.h"

#include "palmtools/pilrc/encoded.h"
#include "palmtools/pilrc/object_bytes.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

using Kind = ObjectKind;

TEST(ObjectFlags, OfFields)
{
    const auto field = [](const char *flags, const char *maxChars, const char *font) {
        return FromHex("0002 0001 0002 0103 FFFC") + FromHex(flags) + std::string(16, '\0') +
               FromHex(maxChars) + std::string(8, '\0') + FromHex(font) + FromHex("00");
    };
    const FormObject plain = {.kind = Kind::field, .number = 2, .place = place};
    EXPECT_EQ(EncodedAs(plain), field("B200", "0000", "00"));
    EXPECT_EQ(DirectoryKind(Kind::field), 0);

    FormObject notes = plain;
    notes.singleLine = false;
    notes.underlined = true;
    notes.maxChars = 255;
    EXPECT_EQ(EncodedAs(notes), field("A240", "00FF", "00"));

    FormObject numeric = plain;
    numeric.underlined = numeric.numeric = true;
    numeric.font = 1;
    EXPECT_EQ(EncodedAs(numeric), field("B242", "0000", "01"));

    FormObject fixed = plain;
    fixed.editable = false;
    EXPECT_EQ(EncodedAs(fixed), field("9200", "0000", "00"));
    fixed.usable = false;
    EXPECT_EQ(EncodedAs(fixed), field("1200", "0000", "00"));
}

TEST(ObjectFlags, OfControls)
{
    const struct {
        const char *what;
        Kind kind;
        bool usable, leftAnchor, frame;
        const char *flags, *style;
    } rows[] = {
        {"button", Kind::button, true, true, true, "C900", "00"},
        {"button without a frame", Kind::button, true, true, false, "C800", "00"},
        {"button, not usable", Kind::button, false, true, true, "4900", "00"},
        {"button, right anchor", Kind::button, true, false, true, "C100", "00"},
        {"a check box has no frame", Kind::checkBox, true, true, true, "C800", "02"},
        {"check box, right anchor", Kind::checkBox, true, false, true, "C000", "02"},
        {"a popup trigger has no frame", Kind::popupTrigger, true, true, true, "C800", "03"},
        {"a selector trigger has one", Kind::selectorTrigger, true, true, true, "C900", "04"},
        {"selector trigger, bare", Kind::selectorTrigger, false, false, true, "4100", "04"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const FormObject object = {.kind = row.kind,
                                   .number = 99,
                                   .place = place,
                                   .texts = {"ab"},
                                   .usable = row.usable,
                                   .leftAnchor = row.leftAnchor,
                                   .frame = row.frame,
                                   .font = 3,
                                   .group = 255};
        EXPECT_EQ(EncodedAs(object), FromHex("0063 0001 0002 0103 FFFC 00000000") +
                                         FromHex(row.flags) + FromHex(row.style) +
                                         FromHex("03 FF 00 616200 00"));
        EXPECT_EQ(DirectoryKind(row.kind), 1);
    }
}

TEST(ObjectFlags, OfAFieldAreABitEach)
{
    const FormObject none = {
        .kind = Kind::field, .usable = false, .editable = false, .singleLine = false};
    EXPECT_EQ(FieldFlags(none), 0x0200);
    const struct {
        bool FormObject::*isSet;
        int flags;
    } rows[] = {
        {&FormObject::usable, 0x8200},     {&FormObject::editable, 0x2200},
        {&FormObject::singleLine, 0x1200}, {&FormObject::underlined, 0x0240},
        {&FormObject::numeric, 0x0202},    {&FormObject::leftAnchor, 0x0200},
        {&FormObject::frame, 0x0200},
    };
    for (const auto &row : rows) {
        FormObject field = none;
        field.*row.isSet = true;
        EXPECT_EQ(FieldFlags(field), row.flags);
    }
}

TEST(ObjectFlags, OfTheOtherObjects)
{
    const struct {
        const char *what;
        int (*flags)(const FormObject &object);
        Kind kind;
        int usable, unusable;
    } rows[] = {
        {"label", LabelFlags, Kind::label, 0x8000, 0},
        {"list", ListFlags, Kind::list, 0xC000, 0x4000},
        {"gadget", GadgetFlags, Kind::gadget, 0xC000, 0x4000},
        {"scroll bar", ScrollBarFlags, Kind::scrollBar, 0x80, 0},
        {"a table is always usable", TableFlags, Kind::table, 0x4000, 0x4000},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(row.flags({.kind = row.kind}), row.usable);
        EXPECT_EQ(row.flags({.kind = row.kind, .usable = false}), row.unusable);
    }
    EXPECT_EQ(TableFlags({.kind = Kind::table, .editable = false}), 0);
}

} // namespace
} // namespace palmtools
