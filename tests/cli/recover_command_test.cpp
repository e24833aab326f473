#include "create_run.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "readback/databases.h"
#include "readback/projects.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class RecoverCommand : public CreateCommand
{
protected:
    QString Output() const { return InFolder(u"recovered.vmp"_s); }

    int Recover(const QByteArray &database)
    {
        WriteBytes(InFolder(u"given.prc"_s), database);
        return Run(QStringList{u"recover"_s, InFolder(u"given.prc"_s), u"-o"_s, Output()} +
                   m_tools);
    }

    /// A complaint about the given database as it stands on standard error.
    QString Complaint(const QString &text) const
    {
        return InFolder(u"given.prc"_s) + u": "_s + text + u'\n';
    }

    /// The database of a project but for its times; empty where it cannot be created.
    QByteArray Created(const QString &project)
    {
        if (Run({u"create"_s, project, u"-o"_s, InFolder(u"out"_s), u"--guid"_s, anIdentifier}) !=
            0)
            return {};
        return BytesOf(Out().trimmed()).replace(36, 8, QByteArray(8, '\0'));
    }

    static QStringList Projects(const QString &folder)
    {
        QStringList projects;
        for (const QString &name : QDir(DataFile(folder)).entryList({u"*.vmp"_s}))
            projects += DataFile(folder + u'/' + name);
        return projects;
    }
};

/// With texts that are written otherwise than they arrive, in the form that is recovered.
Project OddTexts()
{
    Project project = {.FormName = u"odd"_s,
                       .FormVersion = uR"(1\40\42)"_s,
                       .Description = uR"("C:\\temp"\n7\134" ]]\76)"_s,
                       .FormPath = uR"(C:\new\101)"_s};
    AddQuestion(project,
                {0, uR"(\40\42A\42)"_s, uR"(Say "a, b"\nor \134"c\134"\40)"_s, u"Checkboxes"_s,
                 uR"(\1\0022,)"_s},
                {uR"(a\54b)"_s, u""_s, uR"(\42\42)"_s, uR"(\\)"_s});
    AddQuestion(project, {0, u""_s, u""_s, u"Pulldown List"_s, u""_s}, {uR"(\_)"_s});
    AddQuestion(project, {0, u"\t"_s, u"\u20AC\u0081"_s, u"Pulldown List"_s, u"'"_s}, {u""_s});
    return project;
}

} // namespace

TEST_F(RecoverCommand, TheWayBackOfProjectsGivesTheSameDatabase)
{
    QStringList notCreated;
    for (const QString &project : Projects(u"projects"_s) + Projects(u"../../examples"_s)) {
        SCOPED_TRACE(project.toStdString());
        const QByteArray database = Created(project);
        if (database.isEmpty()) {
            notCreated += QFileInfo(project).fileName();
            continue;
        }
        EXPECT_EQ(Recover(database), 0);
        EXPECT_EQ(Out() + Err(), u""_s);
        EXPECT_EQ(Created(Output()), database);
    }
    EXPECT_EQ(notCreated, (QStringList{u"edge-noitems.vmp"_s, u"edge-quotes.vmp"_s}));
}

TEST_F(RecoverCommand, TheWayBackOfGoldenDatabasesGivesTheSame)
{
    for (const QString &name : GoldenNames()) {
        if (name == "plainattr"_L1)
            continue;
        SCOPED_TRACE(name.toStdString());
        EXPECT_EQ(Recover(Golden(name)), 0);
        EXPECT_EQ(Out() + Err(), u""_s);
        const auto withIdentifier = [](const QByteArray &bytes) {
            return WithData(bytes, "guid", 1006,
                            [](const QByteArray &) { return anIdentifier.toLatin1() + '\0'; });
        };
        EXPECT_EQ(Created(Output()),
                  withIdentifier(Golden(name)).replace(36, 8, QByteArray(8, '\0')));
    }
    EXPECT_EQ(LeftBehind(), QStringList());
}

TEST_F(RecoverCommand, WritesTextsSoThatTheyArriveAgain)
{
    const QString project = InFolder(u"odd.vmp"_s);
    WriteBytes(project, *WriteProject(OddTexts()));
    const QByteArray database = Created(project);
    ASSERT_FALSE(database.isEmpty()) << Err().toStdString();
    EXPECT_EQ(Recover(database), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    EXPECT_EQ(BytesOf(Output()), BytesOf(project));
}

TEST_F(RecoverCommand, WritesToStandardOutput)
{
    EXPECT_EQ(Recover(Golden(u"tentypes"_s)), 0);
    EXPECT_EQ(Run({u"recover"_s, DataFile(u"palm/tentypes.prc"_s)}), 0);
    EXPECT_EQ(Out().toLatin1(), BytesOf(Output()));
    EXPECT_EQ(Run({u"recover"_s, u"-"_s, u"-o"_s, u"-"_s}, Golden(u"tentypes"_s)), 0);
    EXPECT_EQ(Out().toLatin1(), BytesOf(Output()));
    EXPECT_EQ(Err(), u""_s);
}

TEST_F(RecoverCommand, NamesWhatWouldBeAnotherAndWritesTheRest)
{
    const QByteArray text = Golden(u"text"_s);
    const QByteArray folderless = QByteArray(text).replace("C:\\Data\\", "C:\\Data/");
    EXPECT_EQ(Recover(folderless), 1);
    EXPECT_TRUE(Err().contains(Complaint(u"Step3\t\tThis is not a valid directory name."_s)));
    EXPECT_TRUE(
        Err().endsWith(Complaint(uR"(The data folder is 'C:\Data/' instead of 'C:\Data/\'.)"_s)))
        << Err().toStdString();
    const auto project = ReadProject(BytesOf(Output()));
    ASSERT_TRUE(project);
    EXPECT_EQ(project->FormPath, u"C:\\Data/"_s);
    EXPECT_EQ(project->source.Questions().Rows()[0].Title, u"Finder"_s);

    EXPECT_EQ(Recover(QByteArray(text).replace("text\0", "te:t\0")), 1);
    EXPECT_TRUE(Err().contains(u":*?<>|are not allowed for file name")) << Err().toStdString();
    EXPECT_EQ(Recover(WithResources(text, Read(text).resources +
                                              QList<PalmResource>{{"zzzz", 1, "other"}})),
              1);
    EXPECT_EQ(Err(), Complaint(u"The resource 'zzzz' 1 does not belong here."_s));
    EXPECT_EQ(Recover(Golden(u"plainattr"_s)), 1);
    EXPECT_TRUE(Err().startsWith(Complaint(u"The database type is 'DATA' instead of 'kelp'."_s)))
        << Err().toStdString();
}

TEST_F(RecoverCommand, TellsProgramsInJson)
{
    const QString database = InFolder(u"given.prc"_s);
    WriteBytes(database, WithNumber(Golden(u"text"_s), 44, 4, 1).replace("Finder", "Fi]]>r"));
    EXPECT_EQ(Run({u"recover"_s, u"--json"_s, database, u"-o"_s, Output()}), 0);
    ASSERT_EQ(Objects().size(), 2) << Out().toStdString();
    EXPECT_EQ(Objects()[0][u"kind"_s], u"remark"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"backup-time"_s);
    EXPECT_EQ(Objects()[1][u"kind"_s], u"result"_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"recovered"_s);
    EXPECT_EQ(Objects()[1][u"file"_s], Output());

    WriteBytes(database, Golden(u"text"_s).replace("Prev", "Back"));
    EXPECT_EQ(Run({u"recover"_s, u"--json"_s, database, u"-o"_s, Output()}), 1);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"finding"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"form-object"_s);
    EXPECT_EQ(Objects()[0][u"field"_s], u"form"_s);
    EXPECT_EQ(Objects()[0][u"question"_s], 1);
    EXPECT_EQ(Objects()[0][u"file"_s], database);
    EXPECT_EQ(Run({u"recover"_s, u"--json"_s, database}), 2)
        << "a project and an object would get mixed";
}

TEST_F(RecoverCommand, TakesADatabaseThatComesFromAHandheld)
{
    const QByteArray plain = Golden(u"tentypes"_s);
    EXPECT_EQ(Recover(plain), 0);
    const QByteArray expected = BytesOf(Output());
    EXPECT_EQ(Recover(WithNumber(WithNumber(plain, 44, 4, 0xB4000001), 32, 2, 0x0109)), 0);
    EXPECT_EQ(Err(), Complaint(u"remark: The database was backed up at 1999-09-11 12:48:01."_s) +
                         Complaint(u"remark: The database is marked to be backed up."_s));
    EXPECT_EQ(BytesOf(Output()), expected);
    EXPECT_EQ(Recover(WithNumber(WithNumber(plain, 48, 4, 3), 68, 4, 9)), 0);
    EXPECT_EQ(Err(), Complaint(u"remark: The handheld's count of changes is 3."_s) +
                         Complaint(u"remark: The handheld's seed of record numbers is 9."_s));
    EXPECT_EQ(BytesOf(Output()), expected);
}

TEST_F(RecoverCommand, TakesResourcesInAnyOrderAndNamesThatLoss)
{
    const QByteArray plain = Golden(u"tentypes"_s);
    EXPECT_EQ(Recover(plain), 0);
    const QByteArray expected = BytesOf(Output());
    QList<PalmResource> resources = Read(plain).resources;
    resources.move(0, 1);
    EXPECT_EQ(Recover(WithResources(plain, resources)), 1);
    EXPECT_EQ(Err(), Complaint(u"Created again, its bytes differ because the resource 'desc' 1003 "
                               "stands after 'flds' 1000 in it."_s));
    EXPECT_EQ(BytesOf(Output()), expected);
    resources.append({"zzzz", 1, "other"});
    EXPECT_EQ(Recover(WithResources(plain, resources)), 1);
    EXPECT_EQ(Err().count(u'\n'), 2) << "each loss is named: " << Err().toStdString();
}

TEST_F(RecoverCommand, WritesAProjectThatCannotBeTried)
{
    UseTools("complain broken fail 1", "print fine");
    EXPECT_EQ(Recover(Golden(u"text"_s)), 4);
    EXPECT_TRUE(ReadProject(BytesOf(Output())));
    UseBuilderThatLeaves(Golden(u"numeric"_s));
    QFile::remove(Output());
    EXPECT_EQ(Recover(Golden(u"text"_s)), 4);
    EXPECT_TRUE(Err().contains(Complaint(u"The database name is 'numeric' instead of 'text'."_s)))
        << Err().toStdString();
    EXPECT_TRUE(ReadProject(BytesOf(Output())));
    EXPECT_EQ(LeftBehind(), QStringList());
}

TEST_F(RecoverCommand, RefusesWhatIsNoDatabase)
{
    for (const QByteArray &bytes :
         {QByteArray(), BytesOf(siteVisit), Golden(u"text"_s).chopped(10), QByteArray(500, '\0')}) {
        EXPECT_EQ(Recover(bytes), 3);
        EXPECT_TRUE(Err().startsWith(InFolder(u"given.prc: "_s))) << Err().toStdString();
        EXPECT_FALSE(QFile::exists(Output()));
    }
    EXPECT_EQ(Run({u"recover"_s, InFolder(u"none.prc"_s), u"-o"_s, Output()}), 3);
    EXPECT_EQ(Run({u"recover"_s}), 2);
}

TEST_F(RecoverCommand, WritesWhereverItIsTold)
{
    const QString text = DataFile(u"palm/text.prc"_s);
    const QString odd = InFolder(u"-o \u00E9 'two'\\n"_s);
    EXPECT_EQ(Run({u"recover"_s, text, u"-o"_s, odd}), 0);
    EXPECT_TRUE(ReadProject(BytesOf(odd)));
    WriteBytes(odd, "an older one");
    EXPECT_EQ(Run({u"recover"_s, text, u"-o"_s, odd}), 0);
    EXPECT_TRUE(ReadProject(BytesOf(odd)));
    EXPECT_EQ(Run({u"recover"_s, text, u"-o"_s, InFolder(u"none/x.vmp"_s)}), 5);
    EXPECT_TRUE(Err().startsWith(InFolder(u"none/x.vmp: "_s))) << Err().toStdString();
    EXPECT_EQ(Run({u"recover"_s, text, u"-o"_s, m_folder.path()}), 5);
}
