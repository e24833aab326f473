#include "platform/code_page.h"
#include "vellumo_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Tools are found along PATH: the real ones, unless a test puts others in their place.
class CreateCommand : public VellumoRun
{
protected:
    CreateCommand()
    {
        qputenv("PATH", PROGRAMS);
        qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
        QDir(m_folder.path()).mkdir(u"out"_s);
        QDir(m_folder.path()).mkdir(u"tools"_s);
    }

    // The folder goes away with the test, and the next one makes its own in the system's.
    ~CreateCommand() override { qputenv("TMPDIR", m_systemTemporary); }

    /// Uses the named fake in place of both tools.
    void UseTools(const QByteArray &pilrc, const QByteArray &buildPrc)
    {
        qputenv("PATH", QFile::encodeName(InFolder(u"tools"_s)) + ":/usr/bin:/bin");
        PutTool(u"pilrc"_s, pilrc);
        PutTool(u"build-prc"_s, buildPrc);
    }

    void PutTool(const QString &name, const QByteArray &orders)
    {
        PutShellTool(name, "exec " FAKE_TOOL " " + orders);
    }

    void PutShellTool(const QString &name, const QByteArray &commands)
    {
        const QString path = InFolder(u"tools/"_s + name);
        WriteBytes(path, "#!/bin/sh\n" + commands + "\n");
        QFile::setPermissions(path, QFile::Permissions(0x7755));
    }

    /// Puts a builder in place that leaves these bytes for a database, whatever it is given.
    void UseBuilderThatLeaves(const QByteArray &database)
    {
        UseTools("print fine", "print fine");
        WriteBytes(InFolder(u"left.prc"_s), database);
        PutShellTool(u"build-prc"_s,
                     "cp " + QFile::encodeName(InFolder(u"left.prc"_s)) + " \"$5\"");
    }

    int Create(const QStringList &projects)
    {
        return Run(QStringList{u"create"_s, u"-o"_s, InFolder(u"out"_s)} + projects);
    }

    QStringList Made() const { return NamesIn(InFolder(u"out"_s)); }
    QStringList LeftBehind() const { return NamesIn(m_temporary.path()); }

    const QByteArray m_systemTemporary = qgetenv("TMPDIR");
    QTemporaryDir m_temporary;
};

const QString siteVisit = DataFile(u"../../examples/SiteVisit.vmp"_s);
const QString nestbox = DataFile(u"misfits/Nestbox-that-fits.vmp"_s);

QByteArray InCodePage(const QString &text)
{
    QByteArray bytes;
    AppendWindows1252(bytes, text);
    return bytes;
}

QString ProjectNamed(const QString &name, const QString &path)
{
    WriteBytes(path, BytesOf(nestbox).replace("[Nestbox]", '[' + InCodePage(name) + ']'));
    return path;
}

} // namespace

TEST_F(CreateCommand, MakesADatabaseAndTellsItsFullPath)
{
    EXPECT_EQ(Create({siteVisit}), 0) << Err().toStdString();
    EXPECT_EQ(Out(), InFolder(u"out/SiteVisit.prc\n"_s));
    EXPECT_EQ(Err(), u""_s);
    EXPECT_TRUE(BytesOf(InFolder(u"out/SiteVisit.prc"_s)).startsWith("SiteVisit\0"));
    EXPECT_EQ(Made(), QStringList{u"SiteVisit.prc"_s});
    EXPECT_EQ(LeftBehind(), QStringList());
}

TEST_F(CreateCommand, BuildsTheGivenIdentifierIn)
{
    EXPECT_EQ(
        Run({u"create"_s, nestbox, u"-o"_s, InFolder(u"out"_s), u"--guid"_s, QString(32, u'B')}),
        0);
    EXPECT_TRUE(BytesOf(InFolder(u"out/Nestbox.prc"_s)).contains(QByteArray(32, 'B') + '\0'));
}

TEST_F(CreateCommand, UsesTheProjectsFolderUnlessAnotherIsGiven)
{
    qputenv("HOME", QFile::encodeName(m_folder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(InFolder(u".config"_s)));
    EXPECT_EQ(Run({u"create"_s, nestbox}), 0);
    EXPECT_EQ(Out(), InFolder(u"Documents/My Vellumo/Nestbox.prc\n"_s));
    EXPECT_TRUE(QFile::exists(InFolder(u"Documents/My Vellumo/Nestbox.prc"_s)));
}

TEST_F(CreateCommand, TriesEveryProjectAndReturnsTheWorst)
{
    const QString none = InFolder(u"none.vmp"_s);
    const QString noItems = DataFile(u"projects/edge-noitems.vmp"_s);
    EXPECT_EQ(Create({siteVisit, none, noItems, nestbox}), 3);
    EXPECT_EQ(Out(), InFolder(u"out/SiteVisit.prc\n"_s) + InFolder(u"out/Nestbox.prc\n"_s));
    EXPECT_TRUE(Err().startsWith(none + u": No such file or directory\n"_s + noItems +
                                 u": warning: question 3, item list: "_s))
        << Err().toStdString();
    EXPECT_TRUE(Err().endsWith(u'\n' + noItems + u": Question 3 is a list without items\n"_s));
}

TEST_F(CreateCommand, AnEarlierDatabaseStaysUntilTheNewOneIsComplete)
{
    const QString target = InFolder(u"out/Nestbox.prc"_s);
    ASSERT_TRUE(WriteBytes(target, "earlier"));
    UseTools("complain broken fail 1", "complain broken fail 1");
    EXPECT_EQ(Create({nestbox}), 4);
    EXPECT_EQ(BytesOf(target), "earlier");

    qputenv("PATH", PROGRAMS);
    EXPECT_EQ(Create({nestbox}), 0);
    EXPECT_TRUE(BytesOf(target).startsWith("Nestbox\0"));
    EXPECT_EQ(Made(), QStringList{u"Nestbox.prc"_s});
}

TEST_F(CreateCommand, ReportsAToolInItsOwnWords)
{
    UseTools("complain 'no such font' fail 1", "print x");
    EXPECT_EQ(Create({nestbox}), 4);
    EXPECT_TRUE(Err().startsWith(nestbox + u": failed (exit status 1): pilrc -ro -I "_s))
        << Err().toStdString();
    EXPECT_TRUE(Err().endsWith(u"\nno such font\n"));
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(LeftBehind(), QStringList());
}

TEST_F(CreateCommand, ReportsAToolThatSaysNothing)
{
    UseTools("crash", "print fine");
    EXPECT_EQ(Create({nestbox}), 4);
    EXPECT_TRUE(Err().startsWith(nestbox + u": failed (crashed): pilrc -ro -I "_s));
    EXPECT_EQ(Err().count(u'\n'), 1);

    UseTools("print 'words on the other stream' fail 1", "print fine");
    EXPECT_EQ(Create({nestbox}), 4);
    EXPECT_TRUE(Err().endsWith(u"\nwords on the other stream\n"));
}

TEST_F(CreateCommand, RefusesToWorkInATemporaryFolderThatIsNotThere)
{
    qputenv("TMPDIR", "/no/such/folder");
    EXPECT_EQ(Create({nestbox}), 5);
    EXPECT_EQ(Err(), u"/no/such/folder: There is no such folder for temporary files\n"_s);
}

TEST_F(CreateCommand, TakesAnEmptyNameOfATemporaryFolderForNone)
{
    qputenv("TMPDIR", "");
    EXPECT_EQ(Create({nestbox}), 0) << Err().toStdString();
}

TEST_F(CreateCommand, ReportsAToolThatIsMissing)
{
    qputenv("PATH", QFile::encodeName(InFolder(u"tools"_s)));
    EXPECT_EQ(Create({nestbox}), 4);
    EXPECT_TRUE(Err().startsWith(nestbox + u": cannot start pilrc -ro -I "_s));
    EXPECT_TRUE(Err().contains(u"No such file or directory"));
}

TEST_F(CreateCommand, ReportsToolsThatLeaveNoDatabase)
{
    UseTools("print fine", "print fine");
    EXPECT_EQ(Create({nestbox}), 4);
    EXPECT_EQ(Err(), nestbox + u": the tools left no database\n"_s);
    EXPECT_EQ(Made(), QStringList());
}

TEST_F(CreateCommand, RefusesAFolderThatIsNotThere)
{
    EXPECT_EQ(Run({u"create"_s, nestbox, u"-o"_s, InFolder(u"none"_s)}), 5);
    EXPECT_EQ(Err(), InFolder(u"none"_s) + u": There is no such folder\n"_s);
}

TEST_F(CreateCommand, TakesOddNamesAsNames)
{
    for (const QString &name : {u"a;touch"_s, u"$(id)"_s, u"-x"_s, u"--help"_s, u"`id`"_s,
                                u"caf\u00E9"_s, u"%1%2"_s, u"'"_s, u"&"_s, u"#!"_s, u"{~}"_s,
                                u"a\tb"_s, u"\u20AC"_s, u"[x]^=+,."_s, QString(24, u'\u00FF')}) {
        SCOPED_TRACE(name.toStdString());
        const QString project = InFolder(u"odd.vmp"_s);
        EXPECT_EQ(Create({ProjectNamed(name, project)}), 0) << Err().toStdString();
        EXPECT_EQ(Made(), QStringList{name + u".prc"_s});
        EXPECT_TRUE(
            BytesOf(InFolder(u"out/"_s + name + u".prc"_s)).startsWith(InCodePage(name) + '\0'))
            << "the name is in the handheld's code page";
        QFile::remove(InFolder(u"out/"_s + name + u".prc"_s));
    }
}

TEST_F(CreateCommand, TakesEveryCharacterThatTheRulesAllowInAName)
{
    const QByteArray refused = " \"*/:<>?\\|";
    QStringList projects;
    for (int byte = 0x20; byte < 0x100; ++byte) {
        if (refused.contains(static_cast<char>(byte)))
            continue;
        const QString name = FromWindows1252(QByteArray(1, static_cast<char>(byte))) + u"name"_s;
        projects.append(ProjectNamed(name, InFolder(u"%1.vmp"_s.arg(byte))));
    }
    EXPECT_EQ(Create(projects), 0) << Err().toStdString();
    EXPECT_EQ(Err(), u""_s);
    EXPECT_EQ(Out().count(u'\n'), projects.size());
    EXPECT_EQ(Made().size(), projects.size());
}

TEST_F(CreateCommand, DoesNotCreateWhatFailsTheReview)
{
    const QString notAFileName = u"\"\\/:*?<>|are not allowed for file name"_s;
    const struct {
        QString name, message;
    } rows[] = {
        {u"../x"_s, notAFileName},
        {u"a/b"_s, notAFileName},
        {u"a b"_s, u"Spaces in the Vellsheet name are not allowed."_s},
        {u"  "_s, u"Please enter a name for your Vellsheet."_s},
        {QString(25, u'x'), u"Please keep the Vellsheet name under 24 characters in length."_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        const QString project = ProjectNamed(row.name, InFolder(u"odd.vmp"_s));
        EXPECT_EQ(Create({project}), 1);
        EXPECT_EQ(Out(), u""_s);
        EXPECT_EQ(Err(), project + u": Step1\t\t"_s + row.message + u'\n');
        EXPECT_EQ(Made(), QStringList());
    }
    EXPECT_EQ(NamesIn(m_folder.path()), (QStringList{u"odd.vmp"_s, u"out"_s, u"tools"_s}));
}

TEST_F(CreateCommand, ANameOfDotsCannotLeadElsewhere)
{
    EXPECT_EQ(Create({ProjectNamed(u".."_s, InFolder(u"odd.vmp"_s))}), 1);
    EXPECT_EQ(Made(), QStringList());
}

TEST_F(CreateCommand, WarnsAndCreatesAllTheSame)
{
    const QString project = InFolder(u"warned.vmp"_s);
    WriteBytes(project, BytesOf(nestbox).replace("Box no.", "Box\\_no."));
    EXPECT_EQ(Create({project}), 0);
    EXPECT_TRUE(Err().startsWith(project + u": warning: question 1, title: "_s));
    EXPECT_EQ(Made(), QStringList{u"Nestbox.prc"_s});
}

TEST_F(CreateCommand, TellsWhatDoesNotFitTheScreenAndCreatesAllTheSame)
{
    const QString project = DataFile(u"projects/Nestbox.vmp"_s);
    EXPECT_EQ(Create({project}), 0);
    EXPECT_TRUE(Err().startsWith(project + u": warning: question 5, question text: "_s));
    EXPECT_EQ(Err().count(u'\n'), 1) << Err().toStdString();
    EXPECT_EQ(Made(), QStringList{u"Nestbox.prc"_s});
}

struct WrongDatabase {
    const char *what;
    QByteArray database;
};

/// Databases that are not the nestbox's, of which this is the right one.
std::vector<WrongDatabase> WrongDatabases(const QByteArray &right)
{
    const auto changed = [&right](qsizetype at, char to) {
        QByteArray bytes = right;
        bytes[at] = to;
        return bytes;
    };
    return {
        {"an empty file", ""},
        {"half of it", right.first(right.size() / 2)},
        {"its last byte missing", right.chopped(1)},
        {"a byte too many", right + '\0'},
        {"another project's", BytesOf(DataFile(u"palm/text.prc"_s))},
        {"no database at all", BytesOf(nestbox)},
        {"another name", changed(0, 'X')},
        {"not hidden", changed(32, '\0')},
        {"another type", changed(60, 'K')},
        {"another creator", changed(64, 'w')},
        {"a resource less", changed(77, char(right[77] - 1))},
        {"another number", changed(83, char(right[83] + 1))},
        {"a stale question", QByteArray(right).replace("Number on the box", "Number on the tag")},
        {"a stale item", QByteArray(right).replace("Great tit", "Coal tit!")},
        {"a stale column", QByteArray(right).replace("REMARKS", "REMARKZ")},
        {"a stale version", right.last(4) == QByteArray("1.0") + '\0'
                                ? right.chopped(4) + "1.1" + '\0'
                                : right.chopped(2) + "9" + '\0'},
    };
}

TEST_F(CreateCommand, TakesNoDatabaseThatIsNotTheProjects)
{
    ASSERT_EQ(Create({nestbox}), 0);
    const QString target = InFolder(u"out/Nestbox.prc"_s);
    const QByteArray right = BytesOf(target);
    for (const WrongDatabase &row : WrongDatabases(right)) {
        SCOPED_TRACE(row.what);
        ASSERT_NE(row.database, right) << "damaged in name only";
        UseBuilderThatLeaves(row.database);
        EXPECT_EQ(Create({nestbox}), 4);
        EXPECT_EQ(Out(), u""_s);
        EXPECT_TRUE(Err().startsWith(nestbox + u": "_s)) << Err().toStdString();
        EXPECT_EQ(BytesOf(target), right) << "the earlier one stays";
    }
    UseBuilderThatLeaves(right);
    EXPECT_EQ(Create({nestbox}), 0) << Err().toStdString();
}

TEST_F(CreateCommand, OneProjectDoesNotTakeThePlaceOfAnother)
{
    const QString namesake = ProjectNamed(u"Nestbox"_s, InFolder(u"namesake.vmp"_s));
    EXPECT_EQ(Create({nestbox, namesake}), 5);
    EXPECT_EQ(Out(), InFolder(u"out/Nestbox.prc\n"_s));
    EXPECT_EQ(Err(),
              namesake + u": its database would take the place of that of "_s + nestbox + u'\n');
}

TEST_F(CreateCommand, EndsAToolThatHangs)
{
    UseTools("hang", "print fine");
    EXPECT_EQ(Create({nestbox, u"--timeout"_s, u"1"_s}), 4);
    EXPECT_TRUE(Err().startsWith(nestbox + u": did not end within 1 s: pilrc "_s))
        << Err().toStdString();
    EXPECT_EQ(LeftBehind(), QStringList());
}

TEST_F(CreateCommand, TellsAPersonHowFarItIs)
{
    watched = true;
    EXPECT_EQ(Create({siteVisit, nestbox}), 0);
    EXPECT_EQ(Err(), u"1 of 2: "_s + siteVisit + u"\n2 of 2: "_s + nestbox + u'\n');
    EXPECT_EQ(Create({siteVisit}), 0);
    EXPECT_EQ(Err(), u""_s);
}

TEST_F(CreateCommand, TellsProgramsInJson)
{
    EXPECT_EQ(Create({nestbox, InFolder(u"none.vmp"_s), u"--json"_s}), 3);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"code"_s], u"created"_s);
    EXPECT_EQ(Objects()[0][u"file"_s], InFolder(u"out/Nestbox.prc"_s));
    EXPECT_EQ(Objects()[1][u"code"_s], u"unreadable"_s);
    EXPECT_EQ(Err(), u""_s);
}
