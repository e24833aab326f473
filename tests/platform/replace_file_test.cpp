#include "replaces_file.h"
#include "support/ordinary_user.h"

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST_F(ReplacesFile, GivesTheNewFileTheRightsOfTheOld)
{
    for (const mode_t rights : {0600u, 0640u, 0664u, 0777u}) {
        ASSERT_TRUE(WriteBytes(InFolder(u"a"_s), "old"));
        ASSERT_EQ(chmod(Name(u"a"_s), rights), 0);
        EXPECT_TRUE(ReplaceFile(InFolder(u"a"_s), "new"));
        EXPECT_EQ(BytesOf(InFolder(u"a"_s)), "new");
        EXPECT_EQ(StatusOf(InFolder(u"a"_s)).st_mode & 07777, rights);
    }
    const mode_t before = umask(027);
    EXPECT_TRUE(ReplaceFile(InFolder(u"b"_s), "new"));
    umask(before);
    EXPECT_EQ(StatusOf(InFolder(u"b"_s)).st_mode & 07777, 0640u) << "where nothing stood";
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(ReplacesFile, GivesTheNewFileTheOwnerOfTheOldWhereItMay)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    ASSERT_TRUE(WriteBytes(InFolder(u"a"_s), "old"));
    ASSERT_EQ(chown(Name(u"a"_s), somebody, somebody), 0);
    ASSERT_EQ(chmod(Name(u"a"_s), 0666), 0);
    EXPECT_TRUE(ReplaceFile(InFolder(u"a"_s), "new"));
    EXPECT_EQ(StatusOf(InFolder(u"a"_s)).st_uid, somebody);
    EXPECT_EQ(StatusOf(InFolder(u"a"_s)).st_gid, somebody);

    ASSERT_EQ(chmod(QFile::encodeName(m_folder.path()), 0777), 0);
    {
        const AsOrdinaryUser ordinary;
        EXPECT_TRUE(ReplaceFile(InFolder(u"a"_s), "newer"));
    }
    EXPECT_EQ(BytesOf(InFolder(u"a"_s)), "newer");
    EXPECT_EQ(StatusOf(InFolder(u"a"_s)).st_uid, nobody);
}

TEST_F(ReplacesFile, ButNotOneThatTheUserMayNotWrite)
{
    ASSERT_TRUE(WriteBytes(InFolder(u"a"_s), "old"));
    ASSERT_EQ(chmod(Name(u"a"_s), 0444), 0);
    ASSERT_EQ(chmod(QFile::encodeName(m_folder.path()), 0777), 0);
    const AsOrdinaryUser ordinary;
    const Outcome outcome = ReplaceFile(InFolder(u"a"_s), "new");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().text, u"Permission denied"_s);
    EXPECT_EQ(outcome.error().file, InFolder(u"a"_s));
    EXPECT_EQ(BytesOf(InFolder(u"a"_s)), "old");
}

TEST_F(ReplacesFile, AlsoInAFolderThatCannotBeListed)
{
    ASSERT_EQ(chmod(QFile::encodeName(m_folder.path()), 0733), 0);
    const AsOrdinaryUser ordinary;
    EXPECT_TRUE(ReplaceFile(InFolder(u"a"_s), "new"));
    EXPECT_TRUE(ReplaceFile(InFolder(u"a"_s), "newer"));
    EXPECT_EQ(BytesOf(InFolder(u"a"_s)), "newer");
}

TEST_F(ReplacesFile, OfANameAsLongAsTheFileSystemTakes)
{
    for (const int length : {200, 247, 248, 249, 254, 255}) {
        SCOPED_TRACE(length);
        const QString path = InFolder(QString(length, u'x'));
        EXPECT_TRUE(ReplaceFile(path, "first"));
        EXPECT_TRUE(ReplaceFile(path, "second"));
        EXPECT_EQ(BytesOf(path), "second");
    }
    const Outcome outcome = ReplaceFile(InFolder(QString(256, u'x')), "x");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().text, u"File name too long"_s);
    EXPECT_EQ(Names().size(), 6);
}

TEST_F(ReplacesFile, ThatALinkLeadsTo)
{
    QDir(m_folder.path()).mkpath(u"inner/deep"_s);
    ASSERT_TRUE(WriteBytes(InFolder(u"inner/a"_s), "old"));
    const struct {
        const char *name, *target;
        QString end;
    } rows[] = {
        {"beside", "inner/a", u"inner/a"_s},
        {"second", "beside", u"inner/a"_s},
        {"inner/deep/up", "../a", u"inner/a"_s},
        {"way", "inner/deep/../deep/up", u"inner/a"_s},
        {"free", "inner/deep/new", u"inner/deep/new"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QString name = QString::fromLatin1(row.name);
        ASSERT_EQ(symlink(row.target, Name(name)), 0);
        EXPECT_TRUE(ReplaceFile(InFolder(name), row.name));
        EXPECT_EQ(BytesOf(InFolder(row.end)), row.name);
        EXPECT_TRUE(QFileInfo(InFolder(name)).isSymLink()) << "the link stays";
        EXPECT_TRUE(QFileInfo(InFolder(row.end)).isFile());
    }
    ASSERT_EQ(symlink(Name(u"inner"_s), Name(u"absolute"_s)), 0);
    EXPECT_TRUE(ReplaceFile(InFolder(u"absolute/../inner/a"_s), "by an absolute link"));
    EXPECT_EQ(BytesOf(InFolder(u"inner/a"_s)), "by an absolute link");
}

TEST_F(ReplacesFile, NamedFromTheCurrentFolder)
{
    const QString before = QDir::currentPath();
    QDir(m_folder.path()).mkdir(u"inner"_s);
    ASSERT_TRUE(QDir::setCurrent(InFolder(u"inner"_s)));
    EXPECT_TRUE(ReplaceFile(u"a"_s, "a"));
    EXPECT_TRUE(ReplaceFile(u"./../b"_s, "b"));
    QDir::setCurrent(before);
    EXPECT_EQ(BytesOf(InFolder(u"inner/a"_s)), "a");
    EXPECT_EQ(BytesOf(InFolder(u"b"_s)), "b");
}

TEST_F(ReplacesFile, ButNoFolderAndNothingThatLeadsNowhere)
{
    QDir(m_folder.path()).mkdir(u"inner"_s);
    ASSERT_EQ(symlink("round", Name(u"round"_s)), 0);
    ASSERT_EQ(symlink("inner", Name(u"link"_s)), 0);
    const struct {
        QString name, text;
    } rows[] = {
        {u"inner"_s, u"Is a folder"_s},
        {u"inner/"_s, u"Is a folder"_s},
        {u"inner/."_s, u"Is a folder"_s},
        {u"inner/.."_s, u"Is a folder"_s},
        {u"link"_s, u"Is a folder"_s},
        {u"round"_s, u"Too many levels of symbolic links"_s},
        {u"none/a"_s, u"No such file or directory"_s},
        {u"none/"_s, u"No such file or directory"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        const Outcome outcome = ReplaceFile(m_folder.path() + u'/' + row.name, "x");
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().text, row.text);
        EXPECT_EQ(outcome.error().file, m_folder.path() + u'/' + row.name);
    }
    EXPECT_FALSE(ReplaceFile(QString(), "x"));
    EXPECT_FALSE(ReplaceFile(InFolder(u"a"_s) + QChar(0) + u'b', "x"));
    EXPECT_EQ(Names(), (QStringList{u"inner"_s, u"link"_s, u"round"_s}));
}
