#include "handheld/font_widths.h"

#include "support/files.h"

#include <gtest/gtest.h>

using namespace vellumo;

TEST(FontWidths, AreThoseOfTheHandheld)
{
    const QList<QByteArray> lines =
        BytesOf(DataFile("../../resources/font-widths.csv")).split('\n');
    ASSERT_EQ(lines.size(), 1 + 3 * 256 + 1);
    for (const QByteArray &line : lines.sliced(1, 3 * 256)) {
        const QList<QByteArray> row = line.split(',');
        const QByteArray text(1, static_cast<char>(row[1].toInt()));
        EXPECT_EQ(TextWidth(text, row[0].toUInt()), row[2].toUInt()) << line.toStdString();
    }
}

TEST(FontWidths, AddUp)
{
    EXPECT_EQ(TextWidth("", 0), 0u);
    EXPECT_EQ(TextWidth("WiW", 0), 2 * TextWidth("W", 0) + TextWidth("i", 0));
}
