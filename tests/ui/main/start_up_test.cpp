#include "ui/main/start_up.h"

#include "support/print.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Surroundings that only note what was done, in which order.
class StartUpTest : public testing::Test
{
protected:
    Start StartedWith(const QStringList &arguments)
    {
        return StartUp({.applicationFolder = u"/opt/vellumo"_s,
                        .arguments = arguments,
                        .makeProjectsFolder = [this] { m_done += u"folder"_s; },
                        .showSplash = [this] { m_done += u"splash"_s; },
                        .readShowOpenForm =
                            [this] {
                                m_done += u"settings"_s;
                                return m_setting;
                            },
                        .showChooser =
                            [this] {
                                m_done += u"chooser"_s;
                                return m_chosen;
                            },
                        .tell = [this](const QString &message) { m_done += message; }});
    }

    ShowOpenForm m_setting = {.value = 1};
    Start m_chosen;
    QStringList m_done;
};

const QStringList folderAlone = {u"folder"_s};
const QStringList withoutChooser = {u"folder"_s, u"splash"_s, u"settings"_s};
const QStringList everything = {u"folder"_s, u"splash"_s, u"settings"_s, u"chooser"_s};

TEST_F(StartUpTest, TakesTheWholeCommandLineForOnePath)
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
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        m_done.clear();
        const Start start = StartedWith(row.arguments);
        EXPECT_EQ(start.choice, u"Existing"_s);
        EXPECT_EQ(start.path, row.path);
        EXPECT_EQ(m_done, folderAlone) << "neither splash nor settings nor chooser";
    }
}

TEST_F(StartUpTest, AnEmptyCommandLineNamesNoProject)
{
    for (const QStringList &arguments : {QStringList(), QStringList{u""_s}}) {
        m_done.clear();
        EXPECT_EQ(StartedWith(arguments).choice, u"New"_s);
        EXPECT_EQ(m_done, everything);
    }
}

TEST_F(StartUpTest, TakesTheChoiceOfTheChooser)
{
    m_chosen = {existingProject, u"/home/a/b.vmp"_s};
    const Start existing = StartedWith({});
    EXPECT_EQ(existing.choice, u"Existing"_s);
    EXPECT_EQ(existing.path, u"/home/a/b.vmp"_s);
    EXPECT_EQ(m_done, everything);

    m_chosen.choice = newProject;
    const Start fresh = StartedWith({});
    EXPECT_EQ(fresh.choice, u"New"_s);
    EXPECT_EQ(fresh.path, u""_s) << "a new project must not be saved over the file chosen before";
}

TEST_F(StartUpTest, AnExistingProjectWithoutAPathIsANewOne)
{
    m_chosen = {existingProject, {}};
    EXPECT_EQ(StartedWith({}).choice, u"New"_s);
}

TEST_F(StartUpTest, SkipsTheChooserWhereTheSettingsSaySo)
{
    m_chosen = {existingProject, u"/home/a/b.vmp"_s};
    m_setting = {.value = 0};
    EXPECT_EQ(StartedWith({}).choice, u"New"_s);
    EXPECT_EQ(m_done, withoutChooser);

    m_done.clear();
    m_setting = {.value = -1};
    EXPECT_EQ(StartedWith({}).choice, u"New"_s);
    EXPECT_EQ(m_done, withoutChooser) << "nothing to tell";
}

TEST_F(StartUpTest, TellsOnceOfADamagedSettingsFileAndGoesOn)
{
    m_setting = {.value = -1, .message = damagedSettingsFile};
    EXPECT_EQ(StartedWith({}).choice, u"New"_s);
    EXPECT_EQ(m_done, withoutChooser + QStringList{u"There is a bug with setting file."_s});
}

} // namespace
