#include "create_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

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
    EXPECT_EQ(Run({u"create"_s, fittingNestbox, u"-o"_s, InFolder(u"out"_s), u"--guid"_s,
                   QString(32, u'B')}),
              0);
    EXPECT_TRUE(BytesOf(InFolder(u"out/Nestbox.prc"_s)).contains(QByteArray(32, 'B') + '\0'));
}

TEST_F(CreateCommand, UsesTheProjectsFolderUnlessAnotherIsGiven)
{
    qputenv("HOME", QFile::encodeName(m_folder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(InFolder(u".config"_s)));
    EXPECT_EQ(Run({u"create"_s, fittingNestbox}), 0);
    EXPECT_EQ(Out(), InFolder(u"Documents/My Vellumo/Nestbox.prc\n"_s));
    EXPECT_TRUE(QFile::exists(InFolder(u"Documents/My Vellumo/Nestbox.prc"_s)));
}

TEST_F(CreateCommand, TriesEveryProjectAndReturnsTheWorst)
{
    const QString none = InFolder(u"none.vmp"_s);
    const QString noItems = DataFile(u"projects/edge-noitems.vmp"_s);
    EXPECT_EQ(Create({siteVisit, none, noItems, fittingNestbox}), 3);
    EXPECT_EQ(Out(), InFolder(u"out/SiteVisit.prc\n"_s) + InFolder(u"out/Nestbox.prc\n"_s));
    EXPECT_TRUE(Err().startsWith(none + u": No such file or directory\n"_s + noItems +
                                 u": warning: question 3, item list: "_s))
        << Err().toStdString();
    EXPECT_TRUE(Err().endsWith(u'\n' + noItems + u": Question 3 is a list without items\n"_s));
}

TEST_F(CreateCommand, RefusesToWorkInATemporaryFolderThatIsNotThere)
{
    qputenv("TMPDIR", "/no/such/folder");
    EXPECT_EQ(Create({fittingNestbox}), 0) << "it works in none, unless there are tools";
    UseTools("print fine", "print fine");
    EXPECT_EQ(Create({fittingNestbox}), 5);
    EXPECT_EQ(Err(), u"/no/such/folder: There is no such folder for temporary files\n"_s);
}

TEST_F(CreateCommand, TakesAnEmptyNameOfATemporaryFolderForNone)
{
    qputenv("TMPDIR", "");
    m_tools =
        QStringList{u"--pilrc"_s, PROGRAMS "/pilrc"_L1, u"--build-prc"_s, PROGRAMS "/build-prc"_L1};
    EXPECT_EQ(Create({fittingNestbox}), 0) << Err().toStdString();
}

TEST_F(CreateCommand, RefusesAFolderThatIsNotThere)
{
    EXPECT_EQ(Run({u"create"_s, fittingNestbox, u"-o"_s, InFolder(u"none"_s)}), 5);
    EXPECT_EQ(Err(), InFolder(u"none"_s) + u": There is no such folder\n"_s);
}

TEST_F(CreateCommand, WarnsAndCreatesAllTheSame)
{
    const QString project = InFolder(u"warned.vmp"_s);
    WriteBytes(project, BytesOf(fittingNestbox).replace("Box no.", "Box\\_no."));
    EXPECT_EQ(Create({project}), 0);
    EXPECT_TRUE(Err().startsWith(project + u": warning: question 1, title: "_s));
    EXPECT_EQ(Made(), QStringList{u"Nestbox.prc"_s});
}

TEST_F(CreateCommand, TellsWhatDoesNotFitTheScreenAndCreatesAllTheSame)
{
    EXPECT_EQ(Create({goldenNestbox}), 0);
    EXPECT_TRUE(Err().startsWith(goldenNestbox + u": warning: question 5, question text: "_s));
    EXPECT_EQ(Err().count(u'\n'), 1) << Err().toStdString();
    EXPECT_EQ(Made(), QStringList{u"Nestbox.prc"_s});
}

TEST_F(CreateCommand, RefusesWhatHasToBeWarnedOfWhereItIsStrict)
{
    const QString path = InFolder(u"wide.vmp"_s);
    WriteBytes(path, BytesOf(siteVisit).replace("[Inspector]", "[" + QByteArray(40, 'W') + "]"));
    EXPECT_EQ(Create({path, u"--strict"_s}), 1);
    EXPECT_TRUE(Err().startsWith(path + u": question 1, title: "_s)) << Err().toStdString();
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(Made(), QStringList());
    EXPECT_EQ(Create({path, u"--quiet"_s}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    WriteBytes(path, BytesOf(siteVisit).replace("[Inspector]", "[a\\b]"));
    EXPECT_EQ(Create({path, u"--quiet"_s}), 0);
    EXPECT_EQ(Out() + Err(), u""_s) << "a creation goes on";
    EXPECT_EQ(Made(), QStringList{u"SiteVisit.prc"_s});
}

TEST_F(CreateCommand, TellsAPersonHowFarItIs)
{
    watched = true;
    EXPECT_EQ(Create({siteVisit, fittingNestbox}), 0);
    EXPECT_EQ(Err(), u"1 of 2: "_s + siteVisit + u"\n2 of 2: "_s + fittingNestbox + u'\n');
    EXPECT_EQ(Create({siteVisit}), 0);
    EXPECT_EQ(Err(), u""_s);
}

TEST_F(CreateCommand, TellsProgramsInJson)
{
    EXPECT_EQ(Create({fittingNestbox, InFolder(u"none.vmp"_s), u"--json"_s}), 3);
    ASSERT_EQ(Objects().size(), 3);
    EXPECT_EQ(Objects()[0][u"code"_s], u"created"_s);
    EXPECT_EQ(Objects()[0][u"file"_s], InFolder(u"out/Nestbox.prc"_s));
    EXPECT_EQ(Objects()[0][u"input"_s], fittingNestbox);
    EXPECT_EQ(Objects()[0][u"exit"_s], 0);
    EXPECT_EQ(Objects()[1][u"code"_s], u"unreadable"_s);
    EXPECT_EQ(Objects()[2][u"code"_s], u"failed"_s);
    EXPECT_EQ(Objects()[2][u"input"_s], InFolder(u"none.vmp"_s));
    EXPECT_EQ(Objects()[2][u"exit"_s], 3);
    EXPECT_EQ(Err(), u""_s);
}
