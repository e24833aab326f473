#include "settings_file.h"
#include "support/full_disk.h"
#include "support/ordinary_user.h"

#include <sys/stat.h>

#include <filesystem>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST_F(BasRegistry, LosesNothingOfADamagedFile)
{
    for (const QByteArray bytes : {"", "[Settings]", "<Vmdesigner><ShowOpenForm>1</ShowOpenForm>",
                                   "<Vmdesigner></Vmdesigner>"}) {
        Put(bytes);
        HideOpenFormNextTime(Folder());
        EXPECT_EQ(BytesOf(File()), bytes);
    }
    ASSERT_TRUE(QFile::remove(File()));
    HideOpenFormNextTime(Folder());
    EXPECT_EQ(NamesIn(Folder()), QStringList()) << "and makes none";
}

TEST_F(BasRegistry, AFolderInThePlaceOfTheFileIsDamage)
{
    ASSERT_TRUE(QDir(Folder()).mkdir(u"settings.ini"_s));
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, -1);
    HideOpenFormNextTime(Folder());
    EXPECT_TRUE(QFileInfo(File()).isDir());
}

TEST_F(BasRegistry, APipeInThePlaceOfTheFileIsDamage)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(File()).constData(), 0600), 0);
    const ShowOpenForm read = ReadShowOpenForm(Folder());
    EXPECT_EQ(read.value, -1) << "and nobody waits for a writer";
    EXPECT_EQ(read.message, u"There is a bug with setting file."_s);
    HideOpenFormNextTime(Folder());
    EXPECT_TRUE(std::filesystem::is_fifo(File().toStdU16String()));
}

TEST_F(BasRegistry, AFileOfMoreThan64KibIsDamage)
{
    const QByteArray largest = QByteArray(asFirstCreated).leftJustified(64LL * 1024, ' ');
    Put(largest);
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, 1);
    Put(largest + ' ');
    const ShowOpenForm read = ReadShowOpenForm(Folder());
    EXPECT_EQ(read.value, -1);
    EXPECT_EQ(read.message, u"There is a bug with setting file."_s);
    HideOpenFormNextTime(Folder());
    EXPECT_EQ(BytesOf(File()), largest + ' ');
}

TEST_F(BasRegistry, AFileThatWouldGrowBeyond64KibStays)
{
    const QByteArray longOne =
        "<Vmdesigner>" + QByteArray(40000, '\n') + "<ShowOpenForm>1</ShowOpenForm></Vmdesigner>";
    Put(longOne);
    HideOpenFormNextTime(Folder());
    EXPECT_EQ(BytesOf(File()), longOne);
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, 1);
}

TEST_F(BasRegistry, AFolderThatCannotBeWrittenIsNotSpokenOf)
{
    ForbidWriting();
    const AsOrdinaryUser ordinary;
    EXPECT_FALSE(EnsureSettingsFile(Folder()));
    const ShowOpenForm read = ReadShowOpenForm(Folder());
    EXPECT_EQ(read.value, -1);
    EXPECT_EQ(read.message, u""_s);
    EXPECT_EQ(NamesIn(Folder()), QStringList());
}

TEST_F(BasRegistry, AFileThatCannotBeReplacedIsReadAndStays)
{
    Put(asFirstCreated);
    {
        const FullDisk full(10);
        HideOpenFormNextTime(Folder());
    }
    EXPECT_EQ(BytesOf(File()), QByteArray(asFirstCreated)) << "the disk was full";
    ForbidWriting();
    const AsOrdinaryUser ordinary;
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, 1);
    HideOpenFormNextTime(Folder());
    EXPECT_EQ(BytesOf(File()), QByteArray(asFirstCreated)) << "the folder is read-only";
}
