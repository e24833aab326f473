#include "handheld/font_widths.h"

#include "handheld/letters.h"

#include <gtest/gtest.h>

using namespace vellumo;

TEST(FontWidths, AreThoseOfTheHandheld)
{
    const QList<QByteArray> lines =
        BytesOf(DataFile("../../resources/font-widths.csv")).split('\n');
    ASSERT_EQ(lines.size(), 1 + 3 * 256 + 1);
    for (const QByteArray &line : lines.sliced(1, 3LL * 256)) {
        const QList<QByteArray> row = line.split(',');
        const QByteArray text(1, static_cast<char>(row[1].toInt()));
        EXPECT_EQ(TextWidth(text, row[0].toUInt()), row[2].toUInt()) << line.toStdString();
    }
}

TEST(FontWidths, AddUp)
{
    EXPECT_EQ(TextWidth("", 0), 0u);
    EXPECT_EQ(TextWidth("WiW", 0), 2 * TextWidth("W", 0) + TextWidth("i", 0));
    EXPECT_EQ(TextWidth("WiW", 2), 0u) << "a font that the handheld does not have";
}

TEST(FontWidths, DrawTheEuroSignWiderThanItIsStored)
{
    EXPECT_EQ(TextWidth("\x80", 0), 5u);
    EXPECT_EQ(TextWidth("\x80", 1), 6u);
    EXPECT_EQ(DrawnWidth("\x80", 0), 8u);
    EXPECT_EQ(DrawnWidth("\x80", 1), 9u);
    EXPECT_EQ(DrawnWidth("\x80", 3), TextWidth("\x80", 3));
    EXPECT_EQ(DrawnWidth("\x80\x80", 0), 16u);
    for (const quint32 font : {0u, 1u, 3u}) {
        for (int code = 0; code < 256; ++code) {
            const QByteArray text = QByteArray("a") + static_cast<char>(code);
            const quint32 more = code == 0x80 && font < 2 ? 3 : 0;
            EXPECT_EQ(DrawnWidth(text, font), TextWidth(text, font) + more) << font << ' ' << code;
        }
    }
}

TEST(FontWidths, CountWhatFits)
{
    EXPECT_EQ(FittingLength("", 10, 1), 0);
    EXPECT_EQ(FittingLength("iii", 9, 1), 3);
    EXPECT_EQ(FittingLength("iii", 8, 1), 2);
    EXPECT_EQ(FittingLength("iii", 2, 1), 0);
    EXPECT_EQ(FittingLength("iii", 5, 0), 2) << "2 pixels each";
    EXPECT_EQ(FittingLength("i\x80", 11, 1), 1) << "the euro sign as the screen has it";
    EXPECT_EQ(FittingLength("i\x80", 12, 1), 2);
}
