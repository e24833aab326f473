#include "ui/main/logoForm.h"

#include "support/print.h"
#include "ui/main/update_check.h"
#include "ui/main/web_server.h"
#include "ui/support/prompt_script.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <utility>

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

QTimer &TimerOf(const logoForm &splash)
{
    return *splash.findChild<QTimer *>(u"Timer1"_s);
}

void TryToClose(QWidget &window)
{
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::keyClick(&window, Qt::Key_Return);
    QTest::mouseClick(&window, Qt::LeftButton);
    window.close();
}

/// Does something at the first paint of a window.
class AtPaint : public QObject
{
public:
    AtPaint(QWidget *window, std::function<void()> act) : m_act(std::move(act))
    {
        window->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && m_act)
            std::exchange(m_act, {})();
        return false;
    }

private:
    std::function<void()> m_act;
};

TEST_F(LogoForm, ClosesAfterItsTimeWithOneCheckBefore)
{
    int checks = 0;
    bool visibleDuringCheck = false;
    const QWidget *parent = nullptr;
    m_environment.splashDuration = 20ms;
    logoForm splash(m_environment, [&](QWidget *window) {
        ++checks;
        parent = window;
        visibleDuringCheck = window->isVisible();
    });
    EXPECT_FALSE(TimerOf(splash).isActive()) << "the time counts from when it is shown";

    splash.exec();
    EXPECT_EQ(checks, 1);
    EXPECT_TRUE(visibleDuringCheck);
    EXPECT_EQ(parent, &splash);
    EXPECT_FALSE(splash.isVisible());
    EXPECT_FALSE(TimerOf(splash).isActive()) << "it fires once";
}

TEST_F(LogoForm, LastsThreeSeconds)
{
    const logoForm splash(m_environment, [](QWidget *) {});
    EXPECT_EQ(TimerOf(splash).interval(), 3000);
    EXPECT_TRUE(TimerOf(splash).isSingleShot());
}

TEST_F(LogoForm, CannotBeClosedBeforeItsTimeNorDuringTheCheck)
{
    bool stayed = false;
    m_environment.splashDuration = 1h;
    logoForm splash(m_environment, [&](QWidget *window) {
        TryToClose(*window);
        QApplication::processEvents();
        stayed = window->isVisible();
    });
    splash.show();
    TryToClose(splash);
    QApplication::processEvents();
    EXPECT_TRUE(splash.isVisible());
    TimerOf(splash).start(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }));
    EXPECT_TRUE(stayed);
}

TEST_F(LogoForm, IsPaintedWhileItWaitsForTheSite)
{
    QWidget *asking = nullptr;
    // The site keeps silent until the splash, which the request made dirty, was painted.
    auto site = std::make_unique<WebServer>([&](const QString &) {
        asking->update();
        return QByteArray();
    });
    m_environment.siteAddress = site->Address();
    bool painted = false;
    m_environment.splashDuration = 0ms;
    logoForm splash(m_environment, [&](QWidget *window) {
        asking = window;
        QApplication::processEvents(); // whatever else there is to paint
        const AtPaint atPaint(window, [&] {
            painted = site->requests().size() == 1;
            QTimer::singleShot(0, window, [&] { site.reset(); });
        });
        CheckForUpdate(window, m_environment, 20s);
    });
    splash.exec();
    EXPECT_TRUE(painted);
    EXPECT_FALSE(site) << "nobody waited for the time-out";
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
