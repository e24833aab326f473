#include "ui/main/logoForm.h"

#include "support/print.h"
#include "ui/main/update_check.h"
#include "ui/main/web_server.h"
#include "ui/support/prompt_script.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

class LogoForm : public testing::Test
{
protected:
    LogoForm()
    {
        m_environment.siteAddress = u"https://maker.example"_s;
        m_environment.version = u"4.5.6"_s;
    }

    Environment m_environment;
};

void TryToClose(QWidget &window)
{
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::keyClick(&window, Qt::Key_Return);
    QTest::mouseClick(&window, Qt::LeftButton);
    window.close();
}

/// Counts how often a window was painted.
class Paints : public QObject
{
public:
    explicit Paints(QWidget *window) { window->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

TEST_F(LogoForm, ClosesAfterItsTimeWithOneCheckBefore)
{
    int checks = 0;
    bool visibleDuringCheck = false;
    const QWidget *parent = nullptr;
    m_environment.splashDuration = 200ms;
    logoForm splash(m_environment, [&](QWidget *window) {
        ++checks;
        parent = window;
        visibleDuringCheck = window->isVisible();
    });
    QTest::qWait(300);
    EXPECT_EQ(checks, 0) << "the time counts from when it is shown";

    QElapsedTimer clock;
    clock.start();
    splash.exec();
    EXPECT_GE(clock.elapsed(), 200);
    EXPECT_EQ(checks, 1);
    EXPECT_TRUE(visibleDuringCheck);
    EXPECT_EQ(parent, &splash);
    EXPECT_FALSE(splash.isVisible());
    QTest::qWait(300);
    EXPECT_EQ(checks, 1) << "the timer fires once";
}

TEST_F(LogoForm, LastsThreeSeconds)
{
    const logoForm splash(m_environment, [](QWidget *) {});
    const auto *timer = splash.findChild<QTimer *>(u"Timer1"_s);
    ASSERT_TRUE(timer);
    EXPECT_EQ(timer->interval(), 3000);
    EXPECT_TRUE(timer->isSingleShot());
}

TEST_F(LogoForm, CannotBeClosedBeforeItsTimeNorDuringTheCheck)
{
    bool stayed = false;
    m_environment.splashDuration = 300ms;
    logoForm splash(m_environment, [&](QWidget *window) {
        TryToClose(*window);
        QTest::qWait(50);
        stayed = window->isVisible();
    });
    splash.show();
    TryToClose(splash);
    EXPECT_TRUE(splash.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }));
    EXPECT_TRUE(stayed);
}

TEST_F(LogoForm, IsPaintedWhileItWaitsForTheSite)
{
    const WebServer silent([](const QString &) { return QByteArray(); });
    m_environment.siteAddress = silent.Address();
    int painted = 0;
    m_environment.splashDuration = 0ms;
    logoForm splash(m_environment, [&](QWidget *window) {
        const Paints paints(window);
        QTimer::singleShot(100, window, [=] { window->update(); });
        CheckForUpdate(window, m_environment, 400ms);
        painted = paints.count;
    });
    splash.exec();
    EXPECT_EQ(silent.requests().size(), 1);
    EXPECT_GE(painted, 1);
}

TEST_F(LogoForm, ShowsTheOfferOverItself)
{
    const WebServer server([](const QString &) { return Page("9.9.9"); });
    m_environment.siteAddress = server.Address();
    QString opened;
    m_environment.open = [&](const QString &target) { opened = target; };
    const PromptScript script({u"Yes"_s});
    m_environment.splashDuration = 0ms;
    logoForm splash(m_environment, [&](QWidget *window) { CheckForUpdate(window, m_environment); });
    splash.exec();
    EXPECT_EQ(script.boxes().size(), 1u);
    EXPECT_EQ(opened, server.Address() + u"/download"_s);
}

TEST_F(LogoForm, StandsInTheMiddleWithoutAFrame)
{
    m_environment.splashDuration = 1h;
    logoForm splash(m_environment, [](QWidget *) {});
    splash.show();
    EXPECT_TRUE(splash.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(splash.isModal());
    EXPECT_FALSE(splash.accessibleName().isEmpty());
    const QPoint off = splash.geometry().center() - splash.screen()->geometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
}

TEST_F(LogoForm, NamesVersionAndSite)
{
    const logoForm splash(m_environment, [](QWidget *) {});
    EXPECT_EQ(splash.findChild<QLabel *>(u"lblVersion"_s)->text(), u"Version 4.5.6"_s);
    EXPECT_EQ(splash.findChild<QLabel *>(u"lblSite"_s)->text(), u"https://maker.example"_s);
}

} // namespace
