#include "ui/common/link_label.h"

#include "ui/common/contrast.h"

#include <QAccessible>
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

TEST(LinkLabel, IsLegibleOnEveryGround)
{
    for (const int grey : {0, 40, 90, 110, 128, 150, 200, 255})
        for (const QColor &link :
             {QColor(Qt::blue), QColor(Qt::yellow), QColor(grey, grey, grey)}) {
            SCOPED_TRACE(std::to_string(grey) + ' ' + link.name().toStdString());
            LinkLabel label;
            QPalette palette(QColor(grey, grey, grey));
            palette.setColor(QPalette::Link, link);
            label.setPalette(palette);
            EXPECT_GE(Contrast(label.Ink(), palette.color(QPalette::Window)), textContrast);
        }
    LinkLabel label;
    QPalette light{QColor(Qt::white)};
    light.setColor(QPalette::Link, Qt::blue);
    label.setPalette(light);
    EXPECT_EQ(label.Ink(), QColor(Qt::blue)) << "legible as it is";
}

TEST(LinkLabel, IsALinkToAssistiveTechnology)
{
    LinkLabel label;
    label.setText(QStringLiteral("name"));
    QSignalSpy followed(&label, &LinkLabel::Followed);
    QAccessibleInterface *link = QAccessible::queryAccessibleInterface(&label);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->role(), QAccessible::Link);
    EXPECT_EQ(link->text(QAccessible::Name), QStringLiteral("name"));
    label.setAccessibleName(QStringLiteral("Help: name"));
    EXPECT_EQ(link->text(QAccessible::Name), QStringLiteral("Help: name"));
    ASSERT_TRUE(link->actionInterface());
    EXPECT_TRUE(
        link->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(followed.count(), 1);
}

} // namespace
