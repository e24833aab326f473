#include "ui/main/start_up.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"
#include "ui/main/web_server.h"
#include "ui/support/await_window.h"
#include "ui/support/prompt_script.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

/// A whole start against folders and a web site of the test's own.
class FirstStart : public testing::Test
{
protected:
    FirstStart()
    {
        qunsetenv("http_proxy");
        m_environment.applicationFolder = m_folder.path();
        m_environment.projectsFolder = m_folder.filePath(u"Documents/My Vellumo/"_s);
        m_environment.siteAddress = m_site.Address();
        m_environment.version = u"1.1.2"_s;
        m_environment.splashDuration = 50ms;
        WriteBytes(m_folder.filePath(u"a.vmp"_s), "x");
    }

    Start StartedWith(const QStringList &arguments) { return StartUp(m_environment, arguments); }
    QString SettingsFile() const { return m_folder.filePath(u"settings.ini"_s); }

    QTemporaryDir m_folder;
    WebServer m_site{[](const QString &) { return Page("1.1.2"); }};
    Environment m_environment;
};

TEST_F(FirstStart, WithAFileChosenAndTheBoxUnticked)
{
    const PromptScript script({m_folder.filePath(u"a.vmp"_s)});
    bool splashSeen = false;
    AwaitWindow(u"logoForm"_s, [&](QWidget &) { splashSeen = true; });
    AwaitWindow(u"fileOpenForm"_s, [&](QWidget &chooser) {
        EXPECT_TRUE(QDir(m_environment.projectsFolder).exists());
        chooser.findChild<QRadioButton *>(u"Option1_1"_s)->click();
        chooser.findChild<QCheckBox *>(u"chkShowThis"_s)->click();
        chooser.findChild<QPushButton *>(u"Command1"_s)->click();
    });
    const Start start = StartedWith({});
    EXPECT_TRUE(splashSeen);
    EXPECT_EQ(script.fileDialogs().size(), 1);
    EXPECT_EQ(m_site.requests().size(), 1) << "one look for a newer version";
    EXPECT_EQ(start.choice, u"Existing"_s);
    EXPECT_EQ(start.path, QDir::toNativeSeparators(m_folder.filePath(u"a.vmp"_s)));
    EXPECT_EQ(BytesOf(SettingsFile()),
              "<Vmdesigner>\r\n<ShowOpenForm>0</ShowOpenForm>\r\n</Vmdesigner>\r\n");
}

TEST_F(FirstStart, KeepsItsSettingsInTheDataFolderOfWhoMayNotWriteBesideTheProgram)
{
    QTemporaryDir home;
    QFile::setPermissions(home.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x5555));
    m_environment.projectsFolder = home.filePath(u"Documents/My Vellumo/"_s);
    m_environment.dataFolder = home.filePath(u"share/vellumo-designer"_s);
    AwaitWindow(u"fileOpenForm"_s, [](QWidget &chooser) {
        chooser.findChild<QCheckBox *>(u"chkShowThis"_s)->click();
        chooser.findChild<QPushButton *>(u"Command1"_s)->click();
    });
    const QStringList before = NamesIn(m_folder.path());
    {
        const AsOrdinaryUser ordinary;
        EXPECT_EQ(StartedWith({}).choice, u"New"_s);
    }
    EXPECT_EQ(BytesOf(m_environment.dataFolder + u"/settings.ini"_s),
              "<Vmdesigner>\r\n<ShowOpenForm>0</ShowOpenForm>\r\n</Vmdesigner>\r\n");
    EXPECT_EQ(NamesIn(m_folder.path()), before);
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
}

TEST_F(FirstStart, TellsOfADamagedSettingsFileInAPlainBox)
{
    ASSERT_TRUE(
        WriteBytes(SettingsFile(), "<Vmdesigner><ShowOpenForm>2</ShowOpenForm></Vmdesigner>"));
    const PromptScript script({u"OK"_s});
    EXPECT_EQ(StartedWith({}).choice, u"New"_s);
    ASSERT_EQ(script.boxes().size(), 1u);
    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.title, u"Vellumo Designer"_s);
    EXPECT_EQ(box.text, u"There is a bug with setting file."_s);
    EXPECT_EQ(box.informative, SettingsFile());
    EXPECT_EQ(box.icon, QMessageBox::NoIcon);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
}

} // namespace
