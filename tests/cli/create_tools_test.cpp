#include "create_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

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

TEST_F(CreateCommand, EndsAToolThatHangs)
{
    UseTools("hang", "print fine");
    EXPECT_EQ(Create({nestbox, u"--timeout"_s, u"1"_s}), 4);
    EXPECT_TRUE(Err().startsWith(nestbox + u": did not end within 1 s: pilrc "_s))
        << Err().toStdString();
    EXPECT_EQ(LeftBehind(), QStringList());
}
