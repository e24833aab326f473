#include "replaces_file.h"

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Somebody else's link, in a folder where everybody may write. It needs root to be made.
class SharedFolder : public ReplacesFile
{
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only root can make the links of others";
        ASSERT_EQ(chmod(QFile::encodeName(m_folder.path()), 0755), 0);
        QDir(m_folder.path()).mkdir(u"public"_s);
        ASSERT_EQ(chmod(Name(u"public"_s), 01777), 0);
        ASSERT_TRUE(WriteBytes(InFolder(u"victim"_s), "kept"));
    }

    void Link(const char *target, const QString &name, uid_t owner)
    {
        ASSERT_EQ(symlink(target, Name(name)), 0);
        ASSERT_EQ(lchown(Name(name), owner, owner), 0);
    }
};

} // namespace

TEST_F(SharedFolder, ALinkOfSomebodyElseIsNotFollowed)
{
    Link("../victim", u"public/trap"_s, nobody);
    Link("..", u"public/way"_s, nobody);
    for (const QString &name : {u"public/trap"_s, u"public/way/victim"_s, u"public/way/new"_s}) {
        SCOPED_TRACE(name.toStdString());
        const Outcome outcome = ReplaceFile(InFolder(name), "taken");
        ASSERT_FALSE(outcome);
        EXPECT_TRUE(outcome.error().text.endsWith(
            u"' is somebody else's, in a folder where others may write"_s))
            << outcome.error().text.toStdString();
        EXPECT_EQ(outcome.error().file, InFolder(name));
    }
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "kept");
    EXPECT_EQ(Names(), (QStringList{u"public"_s, u"victim"_s}));

    ASSERT_EQ(symlink("public/trap", Name(u"own"_s)), 0);
    EXPECT_FALSE(ReplaceFile(InFolder(u"own"_s), "taken")) << "nor one that an own link leads to";
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "kept");
}

TEST_F(SharedFolder, AnOwnLinkIsFollowed)
{
    Link("../victim", u"public/own"_s, 0);
    EXPECT_TRUE(ReplaceFile(InFolder(u"public/own"_s), "by the user's own"));
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "by the user's own");
}

TEST_F(SharedFolder, SomebodyElsesFolderIsOneWhateverItsRights)
{
    ASSERT_EQ(chown(Name(u"public"_s), nobody, nobody), 0);
    ASSERT_EQ(chmod(Name(u"public"_s), 0755), 0);
    Link("../victim", u"public/owners"_s, nobody);
    EXPECT_FALSE(ReplaceFile(InFolder(u"public/owners"_s), "taken"));
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "kept");
}

TEST_F(SharedFolder, InAFolderOfOnesOwnAnyLinkIsFollowed)
{
    Link("victim", u"link"_s, nobody);
    EXPECT_TRUE(ReplaceFile(InFolder(u"link"_s), "followed"));
    EXPECT_EQ(BytesOf(InFolder(u"victim"_s)), "followed");
}
