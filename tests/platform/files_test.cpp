#include "platform/files.h"

#include "support/files.h"
#include "support/full_disk.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <functional>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Files, WritesAnewAndDeletes)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.txt"_s);
    EXPECT_TRUE(WriteNewFile(path, "long content"));
    EXPECT_TRUE(WriteNewFile(path, "short"));
    EXPECT_EQ(BytesOf(path), "short");
    EXPECT_TRUE(RemoveFile(path));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(RemoveFile(path)) << "what does not exist is no error";
}

TEST(Files, AreTheSameByWhateverName)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a"_s), other = folder.filePath(u"b"_s);
    const QString link = folder.filePath(u"c"_s), hard = folder.filePath(u"d"_s);
    ASSERT_TRUE(WriteNewFile(file, "") && WriteNewFile(other, ""));
    ASSERT_TRUE(QFile::link(file, link));
    ASSERT_EQ(::link(QFile::encodeName(file), QFile::encodeName(hard)), 0);
    EXPECT_TRUE(IsSameFile(file, file));
    EXPECT_TRUE(IsSameFile(file, folder.filePath(u"./a"_s)));
    EXPECT_TRUE(IsSameFile(link, file));
    EXPECT_TRUE(IsSameFile(file, hard));
    EXPECT_FALSE(IsSameFile(file, other)) << "although both are empty";
    EXPECT_FALSE(IsSameFile(file, folder.filePath(u"none"_s)));
    EXPECT_FALSE(IsSameFile(folder.filePath(u"none"_s), folder.filePath(u"none"_s)));
    EXPECT_FALSE(IsSameFile(folder.path(), folder.path())) << "no file";
}

TEST(Files, WritesThroughNothingThatStandsInItsWay)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.rcp"_s), other = folder.filePath(u"other"_s);
    const QByteArray name = QFile::encodeName(path), otherName = QFile::encodeName(other);
    ASSERT_TRUE(WriteBytes(other, "kept"));
    const struct {
        const char *what;
        std::function<int()> put;
    } rows[] = {
        {"a link", [&] { return symlink("other", name); }},
        {"a second name of a file", [&] { return link(otherName, name); }},
        {"a link to nothing", [&] { return symlink("none", name); }},
        {"a pipe that nobody reads", [&] { return mkfifo(name, 0600); }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        ASSERT_EQ(row.put(), 0);
        EXPECT_TRUE(WriteNewFile(path, "new"));
        EXPECT_FALSE(QFileInfo(path).isSymLink());
        EXPECT_EQ(BytesOf(path), "new");
        EXPECT_EQ(BytesOf(other), "kept");
        EXPECT_TRUE(RemoveFile(path));
    }
    EXPECT_EQ(NamesIn(folder.path()), QStringList{u"other"_s});
}

TEST(Files, WritesNoFileAnewThatMayNotBeWritten)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.rcp"_s);
    ASSERT_TRUE(WriteBytes(path, "held"));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x4444)));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
    const AsOrdinaryUser ordinary;
    const Outcome outcome = WriteNewFile(path, "new");
    ASSERT_FALSE(outcome);
    EXPECT_TRUE(outcome.error().permissionDenied);
    EXPECT_EQ(outcome.error().text, u"Permission denied"_s);
    EXPECT_EQ(BytesOf(path), "held");
}

TEST(Files, TellsDeniedPermissionFromOtherReasons)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.txt"_s);
    ASSERT_TRUE(WriteBytes(path, "kept"));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOther | QFile::ExeOther |
                                                         QFile::ReadOwner | QFile::ExeOwner));
    {
        const AsOrdinaryUser ordinary;
        const auto writing = WriteNewFile(folder.filePath(u"b.txt"_s), "x");
        ASSERT_FALSE(writing);
        EXPECT_TRUE(writing.error().permissionDenied);
        EXPECT_EQ(writing.error().text, u"Permission denied"_s);
        const auto deleting = RemoveFile(path);
        ASSERT_FALSE(deleting);
        EXPECT_TRUE(deleting.error().permissionDenied);
        EXPECT_EQ(deleting.error().text, u"Permission denied"_s);
    }
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    const auto noFolder = WriteNewFile(folder.filePath(u"none/a.txt"_s), "x");
    ASSERT_FALSE(noFolder);
    EXPECT_FALSE(noFolder.error().permissionDenied);
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"full/inner"_s));
    const auto notEmpty = RemoveFile(folder.filePath(u"full"_s));
    ASSERT_FALSE(notEmpty);
    EXPECT_FALSE(notEmpty.error().permissionDenied);
}

TEST(Files, ReadsNoMoreThanTheLimitAndNamesWhatIsTooLarge)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.bin"_s);
    const FileLimit limit = {4, "spoon"_L1};
    ASSERT_TRUE(WriteBytes(path, "1234"));
    const Result<QByteArray> fits = ReadWholeFile(path, limit);
    ASSERT_TRUE(fits);
    EXPECT_EQ(*fits, "1234");

    ASSERT_TRUE(WriteBytes(path, "12345"));
    const Result<QByteArray> large = ReadWholeFile(path, limit);
    ASSERT_FALSE(large);
    EXPECT_EQ(large.error().text, u"The file is larger than any spoon can be"_s);
    EXPECT_EQ(large.error().file, path);

    EXPECT_EQ(ReadWholeFile(folder.path(), limit).error().text, u"Is a folder"_s);
    EXPECT_EQ(ReadWholeFile(path + u'x', limit).error().text, u"No such file or directory"_s);
}

#ifdef Q_OS_LINUX
TEST(Files, SaysWhatFailsWhileItReads)
{
    const QString unmapped = u"/proc/self/mem"_s; // opens, and has nothing at its beginning
    const Result<QByteArray> read = ReadWholeFile(unmapped, {4, "spoon"_L1});
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().text, u"Input/output error"_s);
    EXPECT_EQ(read.error().file, unmapped);
}
#endif

TEST(Files, NoNewFileTakesTheNameOfAFolder)
{
    const QTemporaryDir folder;
    const Outcome outcome = WriteNewFile(folder.path(), "x");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().text, u"Is a folder"_s);
    EXPECT_EQ(outcome.error().file, folder.path());
    EXPECT_TRUE(QFileInfo(folder.path()).isDir());
}

TEST(Files, AFullDiskIsNoticedWhateverTheSize)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"kept.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "what stood there"));
    for (const int size : {1001, 3000, 16384, 100000}) {
        SCOPED_TRACE(size);
        const FullDisk full(1000);
        const Outcome outcome = ReplaceFile(path, QByteArray(size, 'x'));
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().text, u"File too large"_s);
    }
    EXPECT_EQ(BytesOf(path), "what stood there");
    EXPECT_EQ(NamesIn(folder.path()), QStringList{u"kept.vmp"_s});
}
