#include "palmgen/create_pass.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A pass in folders of its own, with a builder that keeps what it was handed.
class CreatePass : public testing::Test
{
protected:
    CreatePass()
    {
        project.FormName = u"  Survey "_s;
        project.source.AddQuestion();
        project.source.Questions().Current() = {.Order = 1, .Type = u"Text"_s, .Id = 1};
    }

    CreateReport Create()
    {
        const CreatePlace place = {
            folders, [this](const Script &script, const QString &name, const BuildFolders &in) {
                EXPECT_EQ(in.work, folders.work);
                EXPECT_EQ(in.databases, folders.databases);
                scripts.append(script.bytes);
                names.append(name);
                return built;
            }};
        return MakeDatabase(project, place, identifier);
    }

    const BuildFolders folders = {u"/app"_s, u"/projects/"_s};
    BuildReport built;
    QString identifier = u"{01234567-89AB-CDEF-0123-456789ABCDEF}"_s;
    Project project;
    QList<QByteArray> scripts;
    QStringList names;
};

} // namespace

TEST_F(CreatePass, HandsTheScriptToTheBuilder)
{
    built.runs = {{.commandLine = u"a tool"_s, .end = ToolEnd::Failed}};
    const CreateReport report = Create();
    EXPECT_EQ(report.end, CreateEnd::BuildEnded) << "whatever the tools said";
    EXPECT_EQ(report.name, u"Survey"_s);
    EXPECT_EQ(report.database, u"/projects/Survey.prc"_s);
    ASSERT_EQ(report.runs.size(), 1);
    EXPECT_EQ(report.runs[0].commandLine, u"a tool"_s);
    EXPECT_EQ(names, QStringList{u"Survey"_s});
    ASSERT_EQ(scripts.size(), 1);
    EXPECT_TRUE(scripts[0].contains("\"0123456789ABCDEF0123456789ABCDEF\" 0x00\r\n"));
    EXPECT_TRUE(scripts[0].contains("applicationiconname id 1000 \"  Survey \"\r\n"));
}

TEST_F(CreatePass, WorksWithoutAnIdentifier)
{
    identifier.clear();
    EXPECT_EQ(Create().end, CreateEnd::BuildEnded);
    EXPECT_TRUE(scripts.value(0).contains("\"\" 0x00\r\n"));
}

TEST_F(CreatePass, AFailedScriptIsHandedOnAsFarAsItGoes)
{
    project.source.Questions().Current().Type = u"Checkboxes"_s;
    const CreateReport report = Create();
    EXPECT_EQ(report.end, CreateEnd::ProjectRefused);
    EXPECT_EQ(report.error.text, u"Question 1 is a list without items"_s);
    EXPECT_TRUE(scripts.value(0).startsWith("hex\"flds\""));
}

TEST_F(CreatePass, AFileThatCannotBeWrittenEndsThePass)
{
    built.outcome = Error{u"Permission denied"_s, u"a.rcp"_s, 0, true};
    const CreateReport report = Create();
    EXPECT_EQ(report.end, CreateEnd::FileRefused);
    EXPECT_EQ(report.error.file, u"a.rcp"_s);
    EXPECT_TRUE(report.error.permissionDenied);
}

TEST_F(CreatePass, TellsWhyABuildRefusedTheScript)
{
    built.made = Error{u"Survey.rcp:3: no such object"_s};
    const CreateReport report = Create();
    EXPECT_EQ(report.end, CreateEnd::BuildFailed);
    EXPECT_EQ(report.error.text, u"Survey.rcp:3: no such object"_s);
}

TEST_F(CreatePass, TakesNoNameThatLeadsElsewhere)
{
    for (const QString &name : {u"../Survey"_s, u"a/b"_s, u""_s, u" "_s, u"."_s, u".."_s}) {
        SCOPED_TRACE(name.toStdString());
        project.FormName = name;
        EXPECT_EQ(Create().end, CreateEnd::ProjectRefused);
    }
    EXPECT_TRUE(names.isEmpty()) << "nothing was built";
}
