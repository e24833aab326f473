#include "ui/about/frmAbout.h"

#include "support/print.h"
#include "ui/common/link_label.h"

#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The box on screen, and the addresses that it opened.
struct About {
    About()
    {
        environment.version = u"1.1.2"_s;
        environment.siteAddress = u"https://vellumo.example"_s;
        environment.open = [this](const QString &target) { opened += target; };
        box = std::make_unique<frmAbout>(environment);
        box->show();
        QApplication::setActiveWindow(box.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(box.get()));
    }

    QLabel *Label(const char *name) const { return box->findChild<QLabel *>(QLatin1String(name)); }

    Environment environment;
    QStringList opened;
    std::unique_ptr<frmAbout> box;
};

TEST(frmAbout, AsksForHelp)
{
    const About about;
    int asked = 0;
    QObject::connect(about.box.get(), &frmAbout::HelpAsked, [&] { ++asked; });
    QTest::keyClick(about.box.get(), Qt::Key_F1);
    EXPECT_EQ(asked, 1);
}

TEST(frmAbout, SaysWhichProgramItIsAndWhose)
{
    const About about;
    EXPECT_TRUE(about.box->isModal());
    EXPECT_EQ(about.box->windowTitle(), u"About Vellumo Designer"_s);
    EXPECT_EQ(about.Label("lblTitle")->text(), u"Vellumo Designer"_s);
    EXPECT_EQ(about.Label("lblVersion")->text(), u"Version 1.1.2"_s);
    EXPECT_EQ(about.Label("lblurl")->text(), u"https://vellumo.example"_s);
    EXPECT_FALSE(about.Label("lblDisclaimer")->text().isEmpty());
    EXPECT_EQ(about.Label("picIcon")->pixmap().deviceIndependentSize(), QSizeF(64, 64));

    const QStringList notice = about.Label("lblDescription")->text().split(u"\r\n"_s);
    ASSERT_EQ(notice.size(), 3);
    EXPECT_TRUE(notice[0].contains(u"2026 Brindlecot Data Collect"_s));
    for (const QString &mark : {u"Vellumo Viewer"_s, u"Vellumo Conduit"_s, u"Vellumo Designer"_s})
        EXPECT_TRUE(notice[1].contains(mark)) << mark.toStdString();
    for (const QString &mark : {u"Palm OS"_s, u"HotSync"_s, u"the Palm Powered logo"_s})
        EXPECT_TRUE(notice[2].contains(mark)) << mark.toStdString();
}

TEST(frmAbout, ShowsAllOfItsTexts)
{
    const About about;
    for (const auto *label : about.box->findChildren<QLabel *>()) {
        SCOPED_TRACE(label->objectName().toStdString());
        EXPECT_TRUE(about.box->rect().contains(label->geometry()));
        EXPECT_GE(label->width(), label->minimumSizeHint().width());
        if (label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width()));
        }
    }
}

TEST(frmAbout, OpensTheSiteByMouseAndByKeyboard)
{
    const About about;
    EXPECT_EQ(about.Label("lblurl")->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseClick(about.Label("lblurl"), Qt::LeftButton);
    EXPECT_EQ(about.opened, QStringList{u"https://vellumo.example"_s});

    about.Label("lblurl")->setFocus();
    QTest::keyClick(about.Label("lblurl"), Qt::Key_Return);
    EXPECT_EQ(about.opened.size(), 2);
    EXPECT_TRUE(about.box->isVisible()) << "Enter followed the link, it did not press OK";
}

TEST(frmAbout, GoesWithOkEnterAndEscape)
{
    const About about, another, third;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(third.box->isVisible());
    EXPECT_TRUE(third.opened.isEmpty());
    QTest::mouseClick(about.box->findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
    EXPECT_FALSE(about.box->isVisible());
    QTest::keyClick(another.box.get(), Qt::Key_Escape);
    EXPECT_FALSE(another.box->isVisible());
}

} // namespace
