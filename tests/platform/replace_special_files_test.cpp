#include "replaces_file.h"

#include <thread>

#include <fcntl.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

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
