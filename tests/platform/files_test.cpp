#include "platform/files.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Files, WritesAnewAndDeletes)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.txt"_s);
    EXPECT_FALSE(WriteNewFile(path, "long content"));
    EXPECT_FALSE(WriteNewFile(path, "short"));
    EXPECT_EQ(BytesOf(path), "short");
    EXPECT_FALSE(RemoveFile(path));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_FALSE(RemoveFile(path)) << "what does not exist is no fault";
}

TEST(Files, TellsDeniedPermissionFromOtherFaults)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.txt"_s);
    ASSERT_TRUE(WriteBytes(path, "kept"));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOther | QFile::ExeOther |
                                                         QFile::ReadOwner | QFile::ExeOwner));
    {
        const AsOrdinaryUser ordinary;
        const auto writing = WriteNewFile(folder.filePath(u"b.txt"_s), "x");
        ASSERT_TRUE(writing);
        EXPECT_TRUE(writing->permissionDenied);
        EXPECT_EQ(writing->description, u"Permission denied"_s);
        const auto deleting = RemoveFile(path);
        ASSERT_TRUE(deleting);
        EXPECT_TRUE(deleting->permissionDenied);
        EXPECT_EQ(deleting->description, u"Permission denied"_s);
    }
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    const auto noFolder = WriteNewFile(folder.filePath(u"none/a.txt"_s), "x");
    ASSERT_TRUE(noFolder);
    EXPECT_FALSE(noFolder->permissionDenied);
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"full/inner"_s));
    const auto notEmpty = RemoveFile(folder.filePath(u"full"_s));
    ASSERT_TRUE(notEmpty);
    EXPECT_FALSE(notEmpty->permissionDenied);
}
