#include "palmtools/pilrc/object_place.h"

#include "palmtools/pilrc/font_widths.h"
#include "palmtools/pilrc/objects.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

std::string W(int margin, std::string_view text, int font = 0)
{
    return std::to_string(TextWidth(text, font) + margin);
}

TEST(ObjectPlace, IsSettledFromFontAndTexts)
{
    const struct {
        const char *what, *script;
        std::string place;
    } rows[] = {
        {"as told", "BUTTON \"Go\" ID 1 AT (1 2 3 4)", "1 2 3 4 "},
        {"button", "BUTTON \"Go\" ID 1 AT (1 2 AUTO AUTO)", "1 2 " + W(12, "Go") + " 12 "},
        {"width only", "BUTTON \"Go\" ID 1 AT (1 2 AUTO 5)", "1 2 " + W(12, "Go") + " 5 "},
        {"height only", "BUTTON \"Go\" ID 1 AT (1 2 5 AUTO)", "1 2 5 12 "},
        {"check box", "CHECKBOX \"Go\" ID 1 AT (1 2 AUTO AUTO)", "1 2 " + W(18, "Go") + " 12 "},
        {"popup trigger", "POPUPTRIGGER \"Go\" ID 1 AT (1 2 AUTO AUTO)",
         "1 2 " + W(18, "Go") + " 12 "},
        {"selector trigger", "SELECTORTRIGGER \"Go\" ID 1 AT (1 2 AUTO AUTO)",
         "1 2 " + W(6, "Go") + " 12 "},
        {"an empty text", "SELECTORTRIGGER \"\" ID 1 AT (1 2 AUTO AUTO)", "1 2 6 12 "},
        {"the widest item", "LIST \"i\" \"WW\" \"iii\" ID 1 AT (1 2 AUTO AUTO)",
         "1 2 " + W(6, "WW") + " 12 "},
        {"no item", "LIST ID 1 AT (1 2 AUTO AUTO)", "1 2 6 12 "},
        {"field", "FIELD ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"gadget", "GADGET ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"table", "TABLE ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"scroll bar", "SCROLLBAR ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"bold, told at the end", "BUTTON \"Go\" ID 1 AT (1 2 AUTO AUTO) NOFRAME FONT 1",
         "1 2 " + W(12, "Go", 1) + " 12 "},
        {"the symbols are lower", "BUTTON \"\\v\" ID 1 AT (1 2 AUTO AUTO) FONT 3",
         "1 2 " + W(12, "\v", 3) + " 11 "},
        {"field in the symbols", "FIELD ID 1 AT (1 2 AUTO AUTO) FONT 3", "1 2 0 11 "},
        {"label", "LABEL \"Go\" ID 1 AT (1 2)", "1 2 " + W(0, "Go") + " 12 "},
        {"label in bold", "LABEL \"Go\" ID 1 AT (1 2) FONT 1", "1 2 " + W(0, "Go", 1) + " 12 "},
        {"label in symbols", "LABEL \"Go\" ID 1 AT (1 2) FONT 3", "1 2 " + W(0, "Go", 3) + " 11 "},
        {"indicator", "GRAFFITISTATEINDICATOR AT (1 2)", "1 2 9 10 "},
        {"the last font counts", "FIELD ID 1 AT (1 2 AUTO AUTO) FONT 3 FONT 0", "1 2 0 12 "},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ShownPlace(Objects(row.script).Next().place), row.place);
        EXPECT_EQ(Objects(row.script).PreviousAtEnd(), row.place);
    }
}

TEST(ObjectPlace, OfAListDependsOnItsItems)
{
    const struct {
        const char *what;
        std::size_t items;
        const char *sizeAndAttributes;
        int height;
    } rows[] = {
        {"as told", 3, "50 70)", 70},
        {"visible items over AUTO", 3, "50 AUTO) VISIBLEITEMS 8", 88},
        {"visible items over a number", 3, "50 70) VISIBLEITEMS 1", 11},
        {"last below the greatest height", 0, "50 AUTO) VISIBLEITEMS 14", 154},
        {"first above the greatest height", 0, "50 AUTO) VISIBLEITEMS 15", 160},
        {"far above", 0, "50 AUTO) VISIBLEITEMS 65535", 160},
        {"in another font too", 3, "50 AUTO) VISIBLEITEMS 2 FONT 3", 22},
        {"none visible", 3, "50 70) VISIBLEITEMS 0", 0},
        {"AUTO is no zero", 3, "50 AUTO)", 12},
        {"zero stands for all items", 3, "50 0)", 33},
        {"zero and no items", 0, "50 0)", 0},
        {"zero and the most that are shown", 14, "50 0)", 154},
        {"zero and one more", 15, "50 0)", 154},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const std::string script =
            "LIST " + Repeated("\"a\" ", row.items) + "ID 1 AT (1 2 " + row.sizeAndAttributes;
        const std::string place = "1 2 50 " + std::to_string(row.height) + " ";
        EXPECT_EQ(ShownPlace(Objects(script).Next().place), place);
        EXPECT_EQ(Objects(script).PreviousAtEnd(), place);
    }
}

} // namespace
} // namespace palmtools
