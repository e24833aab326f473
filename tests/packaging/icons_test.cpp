#include <QImage>
#include <gtest/gtest.h>

TEST(Icons, HaveTheirSizesAndADrawingOnNoGround)
{
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        SCOPED_TRACE(size);
        const QImage icon(QStringLiteral(ICONS "/%1.png").arg(size));
        ASSERT_EQ(icon.size(), QSize(size, size));
        EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
        EXPECT_EQ(qAlpha(icon.pixel(size - 1, size - 1)), 0);
        EXPECT_EQ(qAlpha(icon.pixel(size / 2, size / 2)), 255);
    }
}
