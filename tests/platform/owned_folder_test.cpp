#include "platform/owned_folder.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <QFileInfo>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class AFolder : public testing::Test
{
protected:
    OwnedFolder Make()
    {
        Result<OwnedFolder> made = OwnedFolder::Make(m_parent.path(), u"own-"_s);
        EXPECT_TRUE(made);
        return *made;
    }
    std::vector<OwnedFolder> TakeOver() const
    {
        return OwnedFolder::TakeOver(m_parent.path(), u"own-"_s);
    }

    QTemporaryDir m_parent;
};

TEST_F(AFolder, IsForItsUserAlone)
{
    const OwnedFolder folder = Make();
    const QFileInfo made(folder.path());
    EXPECT_EQ(made.path(), m_parent.path());
    EXPECT_TRUE(made.fileName().startsWith(u"own-"));
    EXPECT_EQ(made.permissions() & QFile::Permissions(0x0077), QFile::Permissions());
}

TEST_F(AFolder, IsTakenOverOnceItsOwnerIsGone)
{
    QString path;
    {
        const OwnedFolder folder = Make();
        path = folder.path();
        EXPECT_TRUE(TakeOver().empty()) << "its owner lives";
    }
    ASSERT_TRUE(WriteBytes(path + u"/left"_s, "x"));
    std::vector<OwnedFolder> left = TakeOver();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].path(), path);
    EXPECT_TRUE(TakeOver().empty()) << "it has an owner again";
    EXPECT_TRUE(left[0].Remove());
    EXPECT_EQ(NamesIn(m_parent.path()), QStringList());
}

TEST_F(AFolder, NothingElseIsTakenOver)
{
    const QString elsewhere = m_parent.filePath(u"elsewhere"_s);
    QDir(m_parent.path()).mkdir(u"elsewhere"_s);
    QDir(m_parent.path()).mkdir(u"own-toolong"_s);
    QDir(m_parent.path()).mkdir(u"other-abcdef"_s);
    ASSERT_TRUE(WriteBytes(m_parent.filePath(u"own-afile1"_s), "x"));
    ASSERT_TRUE(QFile::link(elsewhere, m_parent.filePath(u"own-alink1"_s)));
    EXPECT_TRUE(TakeOver().empty());
}

TEST_F(AFolder, OfAnotherUserStays)
{
    QFile::setPermissions(m_parent.path(), QFile::Permissions(0x7777));
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can be another user";
    {
        const OwnedFolder folder = Make();
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
    }
    {
        const AsOrdinaryUser user;
        EXPECT_TRUE(TakeOver().empty());
    }
    EXPECT_EQ(TakeOver().size(), 1u);
}

TEST_F(AFolder, IsRefusedWhereItsParentIsNone)
{
    const Result<OwnedFolder> made = OwnedFolder::Make(m_parent.filePath(u"none"_s), u"own-"_s);
    ASSERT_FALSE(made);
    EXPECT_EQ(made.error().text, u"No such file or directory"_s);
    EXPECT_EQ(made.error().file, m_parent.filePath(u"none"_s));
    EXPECT_TRUE(OwnedFolder::TakeOver(m_parent.filePath(u"none"_s), u"own-"_s).empty());
}

TEST_F(AFolder, StaysItsOwnersWhileOthersRemoveLeftOvers)
{
    std::atomic<bool> over = false;
    std::thread sweeper([&] {
        while (!over)
            for (OwnedFolder &left : TakeOver())
                left.Remove();
    });
    for (int i = 0; i < 500; ++i) {
        OwnedFolder folder = Make();
        EXPECT_TRUE(WriteBytes(folder.path() + u"/file"_s, "x"));
        EXPECT_TRUE(QFile::exists(folder.path() + u"/file"_s));
        folder.Remove();
    }
    over = true;
    sweeper.join();
    EXPECT_EQ(NamesIn(m_parent.path()), QStringList());
}

} // namespace
