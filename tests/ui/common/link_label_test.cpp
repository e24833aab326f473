#include "ui/common/link_label.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace vellumo;

namespace {

TEST(LinkLabel, IsFollowedByMouseAndKeyboard)
{
    LinkLabel label;
    label.setText(QStringLiteral("name"));
    QSignalSpy followed(&label, &LinkLabel::Followed);

    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(followed.count(), 1);
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(followed.count(), 1);
    QTest::keyClick(&label, Qt::Key_Return);
    QTest::keyClick(&label, Qt::Key_Space);
    EXPECT_EQ(followed.count(), 3);
}

TEST(LinkLabel, LooksAndBehavesLikeALink)
{
    LinkLabel label;
    EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_TRUE(label.font().underline());
    EXPECT_EQ(label.foregroundRole(), QPalette::Link);
    EXPECT_TRUE(label.focusPolicy() & Qt::TabFocus);
}

} // namespace
