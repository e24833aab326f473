#include "ui/main/start_up.h"

#include "support/files.h"
#include "support/print.h"
#include "ui/support/await_window.h"
#include "ui/support/prompt_script.h"

#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

TEST(StartUp, TakesTheWholeCommandLineForOnePath)
{
    const QString folder = u"/opt/vellumo"_s + QDir::separator();
    const QString elsewhere = u"%1a%1b.vmp"_s.arg(QDir::separator());
    const QString foreignSeparator = QDir::separator() == u'/' ? u"a\\b.vmp"_s : u"a/b.vmp"_s;
    const struct {
        const char *what;
        QStringList arguments;
        QString path;
    } rows[] = {
        {"a bare name", {u"survey.vmp"_s}, folder + u"survey.vmp"_s},
        {"a full path", {elsewhere}, elsewhere},
        {"a relative path",
         {u".%1b.vmp"_s.arg(QDir::separator())},
         u".%1b.vmp"_s.arg(QDir::separator())},
        {"a name with blanks", {u"my"_s, u"survey.vmp"_s}, folder + u"my survey.vmp"_s},
        {"a path with blanks", {elsewhere, u""_s, u"c.vmp"_s}, elsewhere + u"  c.vmp"_s},
        {"quotation marks", {u"\"%1\""_s.arg(elsewhere)}, u"\"%1\""_s.arg(elsewhere)},
        {"a bare name in them", {u"\"a.vmp\""_s}, folder + u"\"a.vmp\""_s},
        {"a separator of elsewhere", {foreignSeparator}, folder + foreignSeparator},
        {"what looks like an option", {u"--help"_s}, folder + u"--help"_s},
        {"nothing", {}, u""_s},
        {"an empty word", {u""_s}, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ProjectOfCommandLine(row.arguments, u"/opt/vellumo"_s), row.path);
    }
}

/// A whole start in folders of the test's own, whose splash goes at once.
class AStart : public testing::Test
{
protected:
    AStart()
    {
        m_environment.applicationFolder = m_folder.path();
        m_environment.projectsFolder = m_folder.filePath(u"Documents/My Vellumo/"_s);
        m_environment.version = u"1.1.2"_s;
        m_environment.splashDuration = 0ms;
        EXPECT_TRUE(WriteBytes(m_folder.filePath(u"a.vmp"_s), "x"));
    }

    void Settings(const QByteArray &value) const
    {
        EXPECT_TRUE(
            WriteBytes(m_folder.filePath(u"settings.ini"_s),
                       "<Vmdesigner><ShowOpenForm>" + value + "</ShowOpenForm></Vmdesigner>"));
    }

    /// Starts without a command line; what is done with the chooser is the test's.
    Start StartedWithChooser(const std::function<void(QWidget &chooser)> &use)
    {
        AwaitWindow(u"fileOpenForm"_s, [&](QWidget &chooser) {
            ++m_choosers;
            use(chooser);
        });
        return StartUp(m_environment, {}, done, [this] { ++m_helps; });
    }

    /// Chooses the file a.vmp, and then an option.
    Start StartedWith(const QString &option)
    {
        return StartedWithChooser([&](QWidget &chooser) {
            chooser.findChild<QRadioButton *>(u"Option1_1"_s)->click();
            chooser.findChild<QRadioButton *>(option)->setChecked(true);
            chooser.findChild<QPushButton *>(u"Command1"_s)->click();
        });
    }

    QTemporaryDir m_folder;
    Environment m_environment;
    int m_choosers = 0;
    int m_helps = 0;
};

TEST_F(AStart, ShowsHelpForTheChooser)
{
    Settings("1");
    StartedWithChooser([](QWidget &chooser) {
        QApplication::setActiveWindow(&chooser);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&chooser));
        QTest::keyClick(&chooser, Qt::Key_F1);
        chooser.close();
    });
    EXPECT_EQ(m_helps, 1);
}

TEST_F(AStart, WithAProjectNamedShowsNothing)
{
    const Start start = StartUp(m_environment, {u"a.vmp"_s});
    EXPECT_EQ(start.choice, u"Existing"_s);
    EXPECT_EQ(start.path, m_folder.path() + QDir::separator() + u"a.vmp"_s);
    EXPECT_TRUE(QDir(m_environment.projectsFolder).exists());
    EXPECT_FALSE(QFile::exists(m_folder.filePath(u"settings.ini"_s)));
}

TEST_F(AStart, KnowsAFileInTheCurrentFolderThatIsNotWhereItIsLookedFor)
{
    const QString before = QDir::currentPath();
    QTemporaryDir current;
    ASSERT_TRUE(QDir::setCurrent(current.path()));
    for (const QString &name : {u"a.vmp"_s, u"my b.vmp"_s})
        EXPECT_TRUE(WriteBytes(current.filePath(name), "x"));
    const struct {
        QStringList arguments;
        QString hint;
    } rows[] = {
        {{u"my"_s, u"b.vmp"_s},
         u"There is one in the current folder: to open it, write .%1my b.vmp."_s.arg(
             QDir::separator())},
        {{u"a.vmp"_s}, {}}, // there is one where it is looked for, too
        {{u"c.vmp"_s}, {}},
        {{u".%1my b.vmp"_s.arg(QDir::separator())}, {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(StartUp(m_environment, row.arguments).hint, row.hint);
    EXPECT_TRUE(QDir::setCurrent(before));
}

TEST_F(AStart, OpensNothingWhereTheNameIsNotWhatWasTyped)
{
    const PromptScript script({u"OK"_s});
    const Error error = {uR"(The name '\xff.vmp' is not in the encoding of this system.)"_s};
    const Start start = StartUp(m_environment, {u"\uFFFD.vmp"_s}, error);
    EXPECT_EQ(start.choice, u"New"_s);
    ASSERT_EQ(script.boxes().size(), 1u);
    EXPECT_EQ(script.boxes()[0].text, u"This file is not a valid VMP file."_s);
    EXPECT_EQ(script.boxes()[0].informative, error.text);
    EXPECT_TRUE(QDir(m_environment.projectsFolder).exists());
}

TEST_F(AStart, TakesTheChoiceOfTheChooser)
{
    const PromptScript script({m_folder.filePath(u"a.vmp"_s), m_folder.filePath(u"a.vmp"_s)});
    const Start existing = StartedWith(u"Option1_1"_s);
    EXPECT_EQ(existing.choice, u"Existing"_s);
    EXPECT_EQ(existing.path, QDir::toNativeSeparators(m_folder.filePath(u"a.vmp"_s)));

    const Start fresh = StartedWith(u"Option1_0"_s);
    EXPECT_EQ(fresh.choice, u"New"_s);
    EXPECT_EQ(fresh.path, u""_s) << "a new project must not be saved over the file chosen before";
    EXPECT_EQ(m_choosers, 2);
    EXPECT_EQ(script.fileDialogs().size(), 2);
}

TEST_F(AStart, AnExistingProjectWithoutAPathIsANewOne)
{
    const Start start = StartedWithChooser([](QWidget &chooser) {
        chooser.findChild<QRadioButton *>(u"Option1_1"_s)->setChecked(true);
        chooser.close();
    });
    EXPECT_EQ(start.choice, u"New"_s);
    EXPECT_EQ(m_choosers, 1);
}

TEST_F(AStart, SkipsTheChooserWhereTheSettingsSaySo)
{
    Settings("0");
    EXPECT_EQ(StartUp(m_environment, {}).choice, u"New"_s) << "and came to its end alone";
}

} // namespace
