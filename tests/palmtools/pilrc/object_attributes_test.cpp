#include "palmtools/pilrc/object_attributes.h"

#include "palmtools/pilrc/objects.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(AttributeSet, HasWhatItWasGiven)
{
    constexpr AttributeSet none = {};
    constexpr AttributeSet two = {Attribute::usable, Attribute::scrollRange};
    for (const Attribute attribute : {Attribute::usable, Attribute::font, Attribute::scrollRange}) {
        EXPECT_FALSE(none.Has(attribute));
        EXPECT_EQ(two.Has(attribute), attribute != Attribute::font);
    }
}

TEST(ObjectAttributes, AreThoseOfTheObjectOnly)
{
    constexpr const char *attributes[] = {
        "USABLE",       "NONUSABLE", "FONT",     "LEFTANCHOR",   "RIGHTANCHOR", "FRAME",
        "NOFRAME",      "GROUP",     "EDITABLE", "NONEDITABLE",  "SINGLELINE",  "MULTIPLELINES",
        "UNDERLINED",   "NUMERIC",   "MAXCHARS", "VISIBLEITEMS", "ROWS",        "COLUMNS",
        "COLUMNWIDTHS", "VALUE",     "MIN",      "MAX",          "PAGESIZE",
    };
    const std::string withNumber =
        " FONT GROUP MAXCHARS VISIBLEITEMS ROWS COLUMNS VALUE MIN MAX PAGESIZE ";
    for (const ExampleObject &example : exampleObjects) {
        for (const std::string attribute : attributes) {
            SCOPED_TRACE(example.script + (" " + attribute));
            const std::string word = " " + attribute + " ";
            const bool isNumbered = withNumber.find(word) != withNumber.npos;
            Objects objects(example.script + word + (isNumbered ? "1" : ""));
            if (std::string(example.attributes).find(word) != std::string::npos) {
                EXPECT_NO_THROW(objects.Next());
                EXPECT_TRUE(objects.words().NextIs(WordKind::end));
            } else {
                try {
                    objects.Next();
                    ADD_FAILURE() << "was taken";
                } catch (const ScriptError &error) {
                    EXPECT_EQ(error.what(), attribute + " does not belong here");
                }
            }
        }
    }
}

TEST(ObjectAttributes, HaveDefaults)
{
    const FormObject field = Objects("FIELD ID 1 AT (1 2 3 4)").Next();
    EXPECT_TRUE(field.usable && field.editable && field.singleLine);
    EXPECT_TRUE(field.leftAnchor && field.frame);
    EXPECT_FALSE(field.underlined || field.numeric);
    EXPECT_EQ(field.font, 0);
    EXPECT_EQ(field.group, 0);
    EXPECT_EQ(field.maxChars, 0);
}

TEST(ObjectAttributes, ComeInAnyOrder)
{
    const FormObject field = Objects("field id 7 at (1 2 3 4) maxchars 255 font 1 NonUsable\n"
                                     "numeric MULTIPLELINES underlined NONEDITABLE")
                                 .Next();
    EXPECT_EQ(field.kind, ObjectKind::field);
    EXPECT_EQ(field.number, 7);
    EXPECT_FALSE(field.usable || field.editable || field.singleLine);
    EXPECT_TRUE(field.underlined && field.numeric);
    EXPECT_EQ(field.font, 1);
    EXPECT_EQ(field.maxChars, 255);

    const FormObject bar =
        Objects("SCROLLBAR 3 1 2 3 4 PAGESIZE 10 MAX 100 MIN 0-5 VALUE 50").Next();
    EXPECT_EQ(bar.value, 50);
    EXPECT_EQ(bar.min, -5);
    EXPECT_EQ(bar.max, 100);
    EXPECT_EQ(bar.pageSize, 10);

    const FormObject box =
        Objects("CHECKBOX \"a\" ID 1 AT (1 2 3 4) GROUP 5 RIGHTANCHOR GROUP 6").Next();
    EXPECT_EQ(box.group, 6);
    EXPECT_FALSE(box.leftAnchor);
}

TEST(ObjectAttributes, CountAsToldLast)
{
    const FormObject button = Objects("BUTTON \"a\" ID 1 AT (1 2 3 4) NONUSABLE NOFRAME USABLE "
                                      "RIGHTANCHOR FRAME LEFTANCHOR NOFRAME")
                                  .Next();
    EXPECT_TRUE(button.usable);
    EXPECT_TRUE(button.leftAnchor);
    EXPECT_FALSE(button.frame);
}

TEST(ObjectAttributes, HaveAsManyWidthsAsThereAreColumns)
{
    using Widths = std::vector<std::int64_t>;
    const std::string table = "TABLE ID 1 AT (1 2 3 4) ";
    EXPECT_EQ(Objects(table + "COLUMNS 2 COLUMNWIDTHS 12 120").Next().columnWidths,
              (Widths{12, 120}));
    EXPECT_EQ(Objects(table + "COLUMNWIDTHS COLUMNS 2").Next().columnWidths, Widths{});
    EXPECT_EQ(Objects(table + "COLUMNS 1 COLUMNWIDTHS 5 COLUMNWIDTHS 6").Next().columnWidths,
              Widths{6});
    EXPECT_THROW(Objects(table + "COLUMNS 2 COLUMNWIDTHS 5 ROWS 1").Next(), ScriptError);
}

TEST(ObjectAttributes, CountRowsAndColumnsByTheirLow16Bits)
{
    const FormObject table = Objects("TABLE ID 1 AT (1 2 3 4) ROWS (-1) COLUMNS (-32768)").Next();
    EXPECT_EQ(table.rows, 65535);
    EXPECT_EQ(table.columns, 32768);
    EXPECT_EQ(Objects("TABLE ID 1 AT (1 2 3 4) ROWS 65535").Next().rows, 65535);
}

} // namespace
} // namespace palmtools
