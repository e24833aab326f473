#include "session.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Tools are found along PATH: the real ones, unless a test puts others in their place.
class CreateCommand : public Session
{
protected:
    CreateCommand()
    {
        qputenv("PATH", PROGRAMS);
        qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
        QDir(m_folder.path()).mkdir(u"out"_s);
        QDir(m_folder.path()).mkdir(u"tools"_s);
    }

    /// Uses the named fake in place of both tools.
    void UseTools(const QByteArray &pilrc, const QByteArray &buildPrc)
    {
        qputenv("PATH", QFile::encodeName(InFolder(u"tools"_s)) + ":/usr/bin:/bin");
        PutTool(u"pilrc"_s, pilrc);
        PutTool(u"build-prc"_s, buildPrc);
    }

    void PutTool(const QString &name, const QByteArray &orders)
    {
        const QString path = InFolder(u"tools/"_s + name);
        WriteBytes(path, "#!/bin/sh\nexec " FAKE_TOOL " " + orders + "\n");
        QFile::setPermissions(path, QFile::Permissions(0x7755));
    }

    int Create(const QStringList &projects)
    {
        return Run(QStringList{u"create"_s, u"-o"_s, InFolder(u"out"_s)} + projects);
    }

    QStringList Made() const { return NamesIn(InFolder(u"out"_s)); }
    QStringList LeftBehind() const { return NamesIn(m_temporary.path()); }

    QTemporaryDir m_temporary;
};

const QString siteVisit = DataFile(u"projects/SiteVisit.vmp"_s);
const QString nestbox = DataFile(u"projects/Nestbox.vmp"_s);

QString ProjectNamed(const QString &name, const QString &path)
{
    WriteBytes(path, BytesOf(nestbox).replace("[Nestbox]", '[' + name.toLatin1() + ']'));
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
    EXPECT_EQ(Err(), none + u": No such file or directory\n"_s + noItems +
                         u": Question 3 is a list without items\n"_s);
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
    EXPECT_TRUE(Err().startsWith(nestbox + u": failed: pilrc -ro -I "_s)) << Err().toStdString();
    EXPECT_TRUE(Err().endsWith(u"\nno such font\n"));
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(LeftBehind(), QStringList());
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
    EXPECT_EQ(Err(), InFolder(u"out/Nestbox.prc"_s) + u": the tools left no database\n"_s);
    EXPECT_EQ(Made(), QStringList());
}

TEST_F(CreateCommand, RefusesAFolderThatIsNotThere)
{
    EXPECT_EQ(Run({u"create"_s, nestbox, u"-o"_s, InFolder(u"none"_s)}), 5);
    EXPECT_EQ(Err(), InFolder(u"none"_s) + u": There is no such folder\n"_s);
}

TEST_F(CreateCommand, TakesOddNamesAsNames)
{
    for (const QString &name : {u"a;touch x"_s, u"$(id)"_s, u"-x"_s, u"--help"_s, u"a b"_s,
                                u"`id`"_s, u"caf\u00E9"_s, u"%1%2"_s, u"'"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QString project = InFolder(u"odd.vmp"_s);
        EXPECT_EQ(Create({ProjectNamed(name, project)}), 0) << Err().toStdString();
        EXPECT_EQ(Made(), QStringList{name + u".prc"_s});
        EXPECT_TRUE(
            BytesOf(InFolder(u"out/"_s + name + u".prc"_s)).startsWith(name.toLatin1() + '\0'))
            << "the name is in the handheld's code page";
        QFile::remove(InFolder(u"out/"_s + name + u".prc"_s));
    }
}

TEST_F(CreateCommand, RefusesNamesThatLeadElsewhere)
{
    for (const QString &name : {u"../x"_s, u"a/b"_s, u".."_s, u"  "_s}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_EQ(Create({ProjectNamed(name, InFolder(u"odd.vmp"_s))}), 1);
        EXPECT_EQ(Made(), QStringList());
    }
    EXPECT_EQ(NamesIn(m_folder.path()), (QStringList{u"odd.vmp"_s, u"out"_s, u"tools"_s}));
}
