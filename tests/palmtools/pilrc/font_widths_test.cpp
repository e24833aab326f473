#include "palmtools/pilrc/font_widths.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace palmtools {
namespace {

TEST(FontWidths, AreThoseOfTheHandheld)
{
    std::ifstream file(TEST_DATA "/../../resources/font-widths.csv");
    std::string heading;
    ASSERT_TRUE(std::getline(file, heading));
    int rows = 0, font = 0, code = 0, width = 0;
    for (char comma = 0; file >> font >> comma >> code >> comma >> width; ++rows) {
        const char c = static_cast<char>(code);
        EXPECT_EQ(TextWidth({&c, 1}, font), width) << "font " << font << ", code " << code;
    }
    EXPECT_EQ(rows, 768);
}

TEST(FontWidths, AddUp)
{
    EXPECT_EQ(TextWidth("", 0), 0);
    EXPECT_EQ(TextWidth("WiW", 0), 2 * TextWidth("W", 0) + TextWidth("i", 0));
}

TEST(FontWidths, KnowThreeFonts)
{
    for (const int font : {0, 1, 3})
        EXPECT_TRUE(FontIsKnown(font)) << font;
    for (const int font : {-1, 2, 4, 255})
        EXPECT_FALSE(FontIsKnown(font)) << font;
    EXPECT_EQ(FontHeight(0), 11);
    EXPECT_EQ(FontHeight(1), 11);
    EXPECT_EQ(FontHeight(3), 10);
}

} // namespace
} // namespace palmtools
