#include "palmgen/create_pass.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A pass in folders of its own; everything that it tells or opens is kept, in order.
class CreatePass : public testing::Test
{
protected:
    CreatePass()
    {
        QDir(m_folder.path()).mkdir(u"app"_s);
        QDir(m_folder.path()).mkdir(u"projects"_s);
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
        place.applicationFolder = m_folder.filePath(u"app"_s);
        place.projectsFolder = m_folder.filePath(u"projects/"_s);
        place.runTool = [this](const ToolCall &call) {
            events.append(u"run "_s + call.name);
            if (call.name == u"pilrc"_s)
                script = BytesOf(call.arguments.last());
            ToolRun run;
            run.started = true;
            run.succeeded = toolsSucceed;
            return run;
        };
        place.reportNotStarted = [this](const QString &text) {
            events.append(u"report "_s + text);
        };
        surroundings.makeIdentifier = [] { return u"{01234567-89AB-CDEF-0123-456789ABCDEF}"_s; };
        surroundings.tellSuccess = [this](const QString &text) {
            events.append(u"good "_s + text);
        };
        surroundings.tellFailure = [this](const QString &text) { events.append(u"bad "_s + text); };
        surroundings.open = [this](const QString &path) { events.append(u"open "_s + path); };

        project.FormName = u"  Survey "_s;
        project.source.AddQuestion();
        project.source.Questions().Current() = {.Order = 1, .Type = u"Text"_s, .Id = 1};
    }

    CreateReport Create()
    {
        surroundings.place = place;
        return CreateVellsheet(project, surroundings);
    }

    QTemporaryDir m_folder;
    BuildPlace place;
    CreateSurroundings surroundings;
    Project project;
    QStringList events;
    QByteArray script;
    bool toolsSucceed = true;
};

const QString failed = u"bad Error in Vellsheet Creation!"_s;

} // namespace

TEST_F(CreatePass, WritesTheScriptBuildsAndTells)
{
    EXPECT_TRUE(Create().IsComplete());
    EXPECT_EQ(events,
              (QStringList{u"run pilrc"_s, u"run build-prc"_s,
                           u"good %1Survey.Prc has been created. You may now install it onto your "
                           "Palm handheld (using the Palm Install Tool) to use with Vellumo "
                           "Viewer."_s.arg(place.projectsFolder),
                           u"open %1Survey.prc"_s.arg(place.projectsFolder),
                           u"open %1"_s.arg(place.projectsFolder)}));
    EXPECT_TRUE(script.contains("\"0123456789ABCDEF0123456789ABCDEF\" 0x00\r\n"));
    EXPECT_TRUE(script.contains("applicationiconname id 1000 \"  Survey \"\r\n"));
    EXPECT_EQ(NamesIn(place.applicationFolder), QStringList());
}

TEST_F(CreatePass, WorksWithoutAnIdentifier)
{
    surroundings.makeIdentifier = [] { return QString(); };
    EXPECT_TRUE(Create().IsComplete());
    EXPECT_TRUE(script.contains("\"\" 0x00\r\n"));
}

TEST_F(CreatePass, ReportsSuccessWhateverTheToolsSaid)
{
    toolsSucceed = false;
    const CreateReport report = Create();
    EXPECT_TRUE(report.IsComplete());
    ASSERT_EQ(report.runs.size(), 2);
    EXPECT_FALSE(report.runs[0].succeeded);
    EXPECT_TRUE(events[2].startsWith(u"good "));
}

TEST_F(CreatePass, AFailedScriptStaysAndNothingIsBuilt)
{
    project.source.Questions().Current().Type = u"Checkboxes"_s;
    const CreateReport report = Create();
    ASSERT_TRUE(report.projectFault);
    EXPECT_EQ(report.projectFault->text, u"Question 1 is a list without items"_s);
    EXPECT_EQ(events, QStringList{failed});
    EXPECT_TRUE(BytesOf(place.applicationFolder + u"/Survey.rcp"_s).startsWith("hex\"flds\""));
}

TEST_F(CreatePass, SaysWhenPermissionIsDenied)
{
    QFile::setPermissions(place.applicationFolder,
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    {
        const AsOrdinaryUser ordinary;
        EXPECT_FALSE(Create().IsComplete());
    }
    QFile::setPermissions(place.applicationFolder, QFile::Permissions(0x7755));
    EXPECT_EQ(events, QStringList{u"bad Permission denied\r\nError in Vellsheet Creation!"_s});
}

TEST_F(CreatePass, SaysNoMoreOfOtherFailures)
{
    QDir(place.applicationFolder).mkdir(u"Survey.rcp"_s);
    EXPECT_FALSE(Create().IsComplete());
    EXPECT_EQ(events, QStringList{failed});
}

TEST_F(CreatePass, ADatabaseThatCannotBeDeletedEndsThePass)
{
    QDir(place.projectsFolder).mkpath(u"Survey.prc/inner"_s);
    EXPECT_FALSE(Create().IsComplete());
    EXPECT_EQ(events, QStringList{failed});
}

TEST_F(CreatePass, TakesNoNameThatLeadsElsewhere)
{
    for (const QString &name : {u"../Survey"_s, u"a/b"_s, u""_s, u" "_s, u"."_s, u".."_s}) {
        SCOPED_TRACE(name.toStdString());
        events.clear();
        project.FormName = name;
        EXPECT_FALSE(Create().IsComplete());
        EXPECT_EQ(events, QStringList{failed});
    }
    EXPECT_EQ(NamesIn(m_folder.path()), (QStringList{u"app"_s, u"projects"_s}));
}
