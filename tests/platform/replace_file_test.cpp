#include "platform/files.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

struct stat StatusOf(const QString &path)
{
    struct stat status = {};
    lstat(QFile::encodeName(path), &status);
    return status;
}

class ReplacesFile : public testing::Test
{
protected:
    QString InFolder(const QString &name) const { return m_folder.filePath(name); }
    QByteArray Name(const QString &name) const { return QFile::encodeName(InFolder(name)); }
    QStringList Names() const { return NamesIn(m_folder.path()); }

    QTemporaryDir m_folder;
};

/// Somebody else's link, in a folder where everybody may write. It needs root to be made.
class SharedFolder : public ReplacesFile
{
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only root can make the links of others";
        ASSERT_EQ(chmod(QFile::encodeName(m_folder.path()), 0755), 0);
        QDir(m_folder.path()).mkdir(u"shared"_s);
        ASSERT_EQ(chmod(Name(u"shared"_s), 01777), 0);
        ASSERT_TRUE(WriteBytes(InFolder(u"victim"_s), "kept"));
    }

    void Link(const char *target, const QString &name, uid_t owner)
    {
        ASSERT_EQ(symlink(target, Name(name)), 0);
        ASSERT_EQ(lchown(Name(name), owner, owner), 0);
    }
};

constexpr uid_t nobody = 65534, somebody = 12345;

} // namespace

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

TEST_F(ReplacesFile, ButAPipeIsWrittenInto)
{
    ASSERT_EQ(mkfifo(Name(u"pipe"_s), 0600), 0);
    EXPECT_TRUE(IsWrittenInto(InFolder(u"pipe"_s)));
    EXPECT_FALSE(IsWrittenInto(InFolder(u"none"_s)));
    EXPECT_FALSE(IsWrittenInto(m_folder.path()));
    const QByteArray bytes(300'000, 'x');
    QByteArray read;
    std::thread reader([&] { read = BytesOf(InFolder(u"pipe"_s)); });
    EXPECT_TRUE(ReplaceFile(InFolder(u"pipe"_s), bytes));
    reader.join();
    EXPECT_EQ(read, bytes);
    EXPECT_TRUE(S_ISFIFO(StatusOf(InFolder(u"pipe"_s)).st_mode));
}

TEST_F(ReplacesFile, AndAPipeThatIsLeftIsAnError)
{
    ASSERT_EQ(mkfifo(Name(u"pipe"_s), 0600), 0);
    std::thread reader([&] { close(open(Name(u"pipe"_s), O_RDONLY)); });
    const Outcome outcome = ReplaceFile(InFolder(u"pipe"_s), QByteArray(300'000, 'x'));
    reader.join();
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().text, u"Broken pipe"_s);
    EXPECT_EQ(outcome.error().file, InFolder(u"pipe"_s));
}

TEST_F(ReplacesFile, ButADeviceIsWrittenInto)
{
    const mode_t device = S_IFCHR | 0666;
    const bool made = mknod(Name(u"null"_s), device, makedev(1, 3)) == 0 &&
                      mknod(Name(u"full"_s), device, makedev(1, 7)) == 0;
    const int opened = made ? open(Name(u"null"_s), O_WRONLY) : -1;
    if (opened < 0)
        GTEST_SKIP() << "devices cannot be made here";
    close(opened);
    EXPECT_TRUE(ReplaceFile(InFolder(u"null"_s), "new"));
    ASSERT_EQ(symlink("null", Name(u"link"_s)), 0);
    EXPECT_TRUE(ReplaceFile(InFolder(u"link"_s), "new"));
    EXPECT_TRUE(S_ISCHR(StatusOf(InFolder(u"null"_s)).st_mode));

    const Outcome outcome = ReplaceFile(InFolder(u"full"_s), "new");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().text, u"No space left on device"_s);
    EXPECT_TRUE(S_ISCHR(StatusOf(InFolder(u"full"_s)).st_mode));
    EXPECT_EQ(Names(), (QStringList{u"full"_s, u"link"_s, u"null"_s}));
}

TEST_F(ReplacesFile, ButADescriptorOfOursIsWrittenInto)
{
    ASSERT_TRUE(WriteBytes(InFolder(u"a"_s), "before, "));
    const int descriptor = open(Name(u"a"_s), O_WRONLY | O_APPEND);
    const QString path = u"/dev/fd/%1"_s.arg(descriptor);
    EXPECT_TRUE(IsWrittenInto(path));
    EXPECT_TRUE(ReplaceFile(path, "after"));
    ASSERT_EQ(symlink(QFile::encodeName(path), Name(u"link"_s)), 0);
    EXPECT_TRUE(ReplaceFile(InFolder(u"link"_s), ", and later"));
    close(descriptor);
    EXPECT_EQ(BytesOf(InFolder(u"a"_s)), "before, after, and later");
    EXPECT_FALSE(ReplaceFile(path, "x")) << "it is closed";
}

TEST_F(SharedFolder, ALinkOfSomebodyElseIsNotFollowed)
{
    Link("../victim", u"shared/trap"_s, nobody);
    Link("..", u"shared/way"_s, nobody);
    for (const QString &name : {u"shared/trap"_s, u"shared/way/victim"_s, u"shared/way/new"_s}) {
        SCOPED_TRACE(name.toStdString());
        const Outcome outcome = ReplaceFile(InFolder(name), "taken");
        ASSERT_FALSE(outcome);
        EXPECT_TRUE(outcome.error().text.endsWith(
            u"' is somebody else's, in a folder where others may write"_s))
            << outcome.error().text.toStdString();
        EXPECT_EQ(outcome.error().file, InFolder(name));
    }
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "kept");
    EXPECT_EQ(Names(), (QStringList{u"shared"_s, u"victim"_s}));

    ASSERT_EQ(symlink("shared/trap", Name(u"own"_s)), 0);
    EXPECT_FALSE(ReplaceFile(InFolder(u"own"_s), "taken")) << "nor one that an own link leads to";
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "kept");
}

TEST_F(SharedFolder, AnOwnLinkIsFollowed)
{
    Link("../victim", u"shared/own"_s, 0);
    EXPECT_TRUE(ReplaceFile(InFolder(u"shared/own"_s), "by the user's own"));
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "by the user's own");
}

TEST_F(SharedFolder, SomebodyElsesFolderIsOneWhateverItsRights)
{
    ASSERT_EQ(chown(Name(u"shared"_s), nobody, nobody), 0);
    ASSERT_EQ(chmod(Name(u"shared"_s), 0755), 0);
    Link("../victim", u"shared/owners"_s, nobody);
    EXPECT_FALSE(ReplaceFile(InFolder(u"shared/owners"_s), "taken"));
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "kept");
}

TEST_F(SharedFolder, InAFolderOfOnesOwnAnyLinkIsFollowed)
{
    Link("victim", u"link"_s, nobody);
    EXPECT_TRUE(ReplaceFile(InFolder(u"link"_s), "followed"));
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "followed");
}
