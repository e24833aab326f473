#include "create_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST_F(CreateCommand, AnEarlierDatabaseStaysUntilTheNewOneIsComplete)
{
    const QString target = InFolder(u"out/Nestbox.prc"_s);
    ASSERT_TRUE(WriteBytes(target, "earlier"));
    UseTools("complain broken fail 1", "complain broken fail 1");
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_EQ(BytesOf(target), "earlier");

    m_tools.clear();
    EXPECT_EQ(Create({fittingNestbox}), 0);
    EXPECT_TRUE(BytesOf(target).startsWith("Nestbox\0"));
    EXPECT_EQ(Made(), QStringList{u"Nestbox.prc"_s});
}

TEST_F(CreateCommand, NeedsNoTools)
{
    qputenv("PATH", "");
    EXPECT_EQ(Create({fittingNestbox}), 0) << Err().toStdString();
    EXPECT_EQ(Made(), QStringList{u"Nestbox.prc"_s});
}

TEST_F(CreateCommand, MakesTheSameBytesWithAndWithoutTools)
{
    const QStringList identifier = {u"--guid"_s, QString(32, u'A')};
    const QString target = InFolder(u"out/%1.prc"_s);
    for (const QString &name : {u"SiteVisit"_s, u"ShelfAudit"_s, u"WaterPoint"_s}) {
        const QStringList words =
            QStringList{DataFile(u"../../examples/%1.vmp"_s.arg(name))} + identifier;
        m_tools.clear();
        ASSERT_EQ(Create(words), 0);
        const QByteArray alone = BytesOf(target.arg(name));
        for (const QStringList &tools : {QStringList{u"--pilrc"_s, PROGRAMS "/pilrc"_L1},
                                         QStringList{u"--build-prc"_s, PROGRAMS "/build-prc"_L1}}) {
            qputenv("PATH", PROGRAMS); // for the one that is not named
            m_tools = tools;
            ASSERT_TRUE(QFile::remove(target.arg(name)));
            ASSERT_EQ(Create(words), 0) << Err().toStdString();
            EXPECT_EQ(BytesOf(target.arg(name)), alone) << name.toStdString();
        }
    }
}

TEST_F(CreateCommand, ReportsAToolInItsOwnWords)
{
    UseTools("complain 'no such font' fail 1", "print x");
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_TRUE(Err().startsWith(fittingNestbox + u": failed (exit status 1): pilrc -ro -I "_s))
        << Err().toStdString();
    EXPECT_TRUE(Err().endsWith(u"\nno such font\n"));
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(LeftBehind(), QStringList());
}

TEST_F(CreateCommand, ReportsAToolThatSaysNothing)
{
    UseTools("crash", "print fine");
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_TRUE(Err().startsWith(fittingNestbox + u": failed (crashed): pilrc -ro -I "_s));
    EXPECT_EQ(Err().count(u'\n'), 1);

    UseTools("print 'words on the other stream' fail 1", "print fine");
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_TRUE(Err().endsWith(u"\nwords on the other stream\n"));
}

TEST_F(CreateCommand, ReportsAToolThatIsMissing)
{
    m_tools = QStringList{u"--pilrc"_s, InFolder(u"tools/pilrc"_s)};
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_TRUE(Err().startsWith(fittingNestbox + u": cannot start pilrc -ro -I "_s));
    EXPECT_TRUE(Err().contains(u"No such file or directory"));
}

TEST_F(CreateCommand, FindsAToolAlongThePath)
{
    PutTool(u"pilrc"_s, "complain 'the one of the path' fail 1");
    qputenv("PATH", QFile::encodeName(InFolder(u"tools"_s)));
    for (const QString &option : {u"--pilrc"_s, u"--build-prc"_s}) {
        m_tools = QStringList{option, u"pilrc"_s};
        EXPECT_EQ(Create({fittingNestbox}), 4);
        EXPECT_TRUE(Err().endsWith(u"\nthe one of the path\n")) << Err().toStdString();
    }
}

TEST_F(CreateCommand, NamesTheProgramThatItLookedFor)
{
    m_tools = QStringList{u"--pilrc"_s, u"no-such-tool"_s};
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_TRUE(Err().endsWith(u": no-such-tool, along PATH: No such file or directory\n"))
        << Err().toStdString();
    m_tools = QStringList{u"--pilrc"_s, InFolder(u"none/pilrc"_s)};
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_TRUE(
        Err().endsWith(u": %1: No such file or directory\n"_s.arg(InFolder(u"none/pilrc"_s))))
        << Err().toStdString();
}

TEST_F(CreateCommand, ReportsToolsThatLeaveNoDatabase)
{
    UseTools("print fine", "print fine");
    EXPECT_EQ(Create({fittingNestbox}), 4);
    EXPECT_EQ(Err(), fittingNestbox + u": the tools left no database\n"_s);
    EXPECT_EQ(Made(), QStringList());
}

TEST_F(CreateCommand, EndsAToolThatHangs)
{
    UseTools("hang", "print fine");
    EXPECT_EQ(Create({fittingNestbox, u"--timeout"_s, u"1"_s}), 4);
    EXPECT_TRUE(Err().startsWith(fittingNestbox + u": did not end within 1 s: pilrc "_s))
        << Err().toStdString();
    EXPECT_EQ(LeftBehind(), QStringList());
}
