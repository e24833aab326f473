#include "ui/common/scroll_page.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A page of 200 pixels with a button at the end of a line, a list and a box, all of 600.
struct WidePage {
    explicit WidePage(Qt::LayoutDirection direction)
    {
        page.setLayoutDirection(direction);
        content = new ScrollContent;
        auto *lines = new QVBoxLayout(content);
        lines->addWidget(button = new QPushButton(u"Press"_s), 0, Qt::AlignTrailing);
        lines->addWidget(list = new QListWidget);
        lines->addWidget(box = new QLineEdit);
        list->addItems({u"one"_s, u"two"_s});
        content->setMinimumWidth(600);
        page.setWidget(content);
        page.resize(200, 500);
        page.show();
        QApplication::setActiveWindow(&page);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
    }
    int Scrolled() const { return page.horizontalScrollBar()->value(); }
    int Most() const { return page.horizontalScrollBar()->maximum(); }

    ScrollPage page;
    ScrollContent *content;
    QPushButton *button;
    QListWidget *list;
    QLineEdit *box;
};

void ExpectBeginnings(Qt::LayoutDirection direction)
{
    WidePage wide(direction);
    wide.button->setFocus();
    EXPECT_EQ(wide.button->visibleRegion(), QRegion(wide.button->rect()));
    EXPECT_GT(wide.Scrolled(), wide.Most() / 2);
    wide.list->setFocus();
    EXPECT_LT(wide.Scrolled(), 20) << "the beginning of the list";

    wide.button->setFocus();
    QTest::keyClick(wide.button, Qt::Key_Tab);
    EXPECT_TRUE(wide.list->hasFocus());
    EXPECT_LT(wide.Scrolled(), 20) << "the beginning of the list, by Tab";
}

TEST(ScrollPage, ShowsTheBeginningOfWhatIsWide)
{
    ExpectBeginnings(Qt::LeftToRight);
}

TEST(ScrollPage, ShowsTheBeginningOfWhatIsWideFromRightToLeft)
{
    ExpectBeginnings(Qt::RightToLeft);
}

TEST(ScrollPage, ShowsTheCursorOfAWideBox)
{
    WidePage wide(Qt::LeftToRight);
    wide.box->setText(QString(45, u'w'));
    wide.box->setFocus();
    const QRect cursor = wide.box->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_GT(cursor.x(), 300);
    EXPECT_TRUE(wide.box->visibleRegion().boundingRect().contains(cursor.center()));
}

} // namespace
