#include "ui/main/start_windows.h"

#include "support/files.h"
#include "support/print.h"
#include "ui/main/web_server.h"
#include "ui/support/prompt_script.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A whole start against folders and a web site of the test's own.
class StartWindows : public testing::Test
{
protected:
    StartWindows()
    {
        qunsetenv("http_proxy");
        m_environment.applicationFolder = m_folder.path();
        m_environment.projectsFolder = m_folder.filePath(u"Documents/My Vellumo/"_s);
        m_environment.siteAddress = m_site.Address();
        m_environment.version = u"1.1.2"_s;
        WriteBytes(m_folder.filePath(u"a.vmp"_s), "x");
    }

    Start StartedWith(const QStringList &arguments)
    {
        return StartUp(StartWithWindows(m_environment, arguments));
    }
    QString SettingsFile() const { return m_folder.filePath(u"settings.ini"_s); }

    QTemporaryDir m_folder;
    WebServer m_site{[](const QString &) { return Page("1.1.2"); }};
    Environment m_environment;
};

/// Looks for a window again and again until it is there, and uses it.
void Await(const QString &name, const std::function<void(QWidget &)> &use)
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return use(*window);
    QTimer::singleShot(20, qApp, [=] { Await(name, use); });
}

TEST_F(StartWindows, FirstStartWithAFileChosenAndTheBoxUnticked)
{
    const PromptScript script({m_folder.filePath(u"a.vmp"_s)});
    bool splashSeen = false;
    Await(u"logoForm"_s, [&](QWidget &) { splashSeen = true; });
    Await(u"fileOpenForm"_s, [&](QWidget &chooser) {
        EXPECT_TRUE(QDir(m_environment.projectsFolder).exists());
        chooser.findChild<QRadioButton *>(u"Option1_1"_s)->click();
        chooser.findChild<QCheckBox *>(u"chkShowThis"_s)->click();
        chooser.findChild<QPushButton *>(u"Command1"_s)->click();
    });
    QElapsedTimer clock;
    clock.start();
    const Start start = StartedWith({});
    EXPECT_GE(clock.elapsed(), 3000) << "the splash stays three seconds";
    EXPECT_TRUE(splashSeen);
    EXPECT_EQ(m_site.requests().size(), 1) << "one look for a newer version";
    EXPECT_EQ(start.choice, u"Existing"_s);
    EXPECT_EQ(start.path, QDir::toNativeSeparators(m_folder.filePath(u"a.vmp"_s)));
    EXPECT_EQ(BytesOf(SettingsFile()),
              "<Vmdesigner>\r\n<ShowOpenForm>0</ShowOpenForm>\r\n</Vmdesigner>\r\n");
}

TEST_F(StartWindows, TellsOfADamagedSettingsFileInAPlainBox)
{
    ASSERT_TRUE(
        WriteBytes(SettingsFile(), "<Vmdesigner><ShowOpenForm>2</ShowOpenForm></Vmdesigner>"));
    const PromptScript script({u"OK"_s});
    EXPECT_EQ(StartedWith({}).choice, u"New"_s);
    ASSERT_EQ(script.boxes().size(), 1u);
    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.title, u"Vellumo Designer"_s);
    EXPECT_EQ(box.text, u"There is a bug with setting file."_s);
    EXPECT_EQ(box.icon, QMessageBox::NoIcon);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
}

TEST_F(StartWindows, AProjectOfTheCommandLineIsOpenedWithoutDelay)
{
    QElapsedTimer clock;
    clock.start();
    const Start start = StartedWith({u"a.vmp"_s});
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_EQ(start.path, m_folder.path() + QDir::separator() + u"a.vmp"_s);
    EXPECT_TRUE(QDir(m_environment.projectsFolder).exists());
    EXPECT_EQ(m_site.connectionCount(), 0);
    EXPECT_FALSE(QFile::exists(SettingsFile()));
}

} // namespace
