#include "every_input.h"
#include "support/full_disk.h"
#include "support/ordinary_user.h"

#include <random>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Whatever is wrong with an input, each command says so in one line and writes nothing.
class BadInput : public EveryInput
{
protected:
    BadInput() { qputenv("PATH", PROGRAMS); }

    /// Any bytes in an encoding are a list of items.
    void ExpectRefused(const QString &path, bool evenAsItems = true)
    {
        for (const InputPlace &place : Places()) {
            if (place.kind == InputKind::Items && !evenAsItems)
                continue;
            const QStringList words = place.With(path);
            SCOPED_TRACE(words.join(u' ').toStdString());
            EXPECT_EQ(Run(words), place.whenUnreadable);
            EXPECT_EQ(Out(), u""_s);
            EXPECT_EQ(Err().count(u'\n'), 1) << Err().toStdString();
            EXPECT_TRUE(Err().startsWith(path + u':')) << Err().toStdString();
        }
        EXPECT_EQ(NamesIn(InFolder(u"out"_s)), QStringList());
    }

    void ExpectRefused(const QByteArray &bytes)
    {
        const QString path = InFolder(u"bad.vmp"_s);
        ASSERT_TRUE(WriteBytes(path, bytes));
        ExpectRefused(path, false);
        EXPECT_EQ(BytesOf(path), bytes) << "an input is never touched";
    }
};

} // namespace

TEST_F(BadInput, IsTriedWithEveryCommand)
{
    QSet<QString> commands = {u"new"_s}; // which has no input
    for (const InputPlace &place : Places())
        commands += place.words.first();
    const QStringList names = CommandNames();
    EXPECT_EQ(commands, QSet<QString>(names.begin(), names.end()));
}

TEST_F(BadInput, AnEmptyFile)
{
    ExpectRefused(QByteArray());
}

TEST_F(BadInput, AFolder)
{
    ExpectRefused(m_folder.path());
}

TEST_F(BadInput, NothingOfThatName)
{
    ExpectRefused(InFolder(u"none.vmp"_s));
}

TEST_F(BadInput, NoPermission)
{
    const QString path = InFolder(u"secret.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, BytesOf(siteVisit)));
    QFile::setPermissions(path, {});
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(InFolder(u"out"_s), QFile::Permissions(0x7777));
    const AsOrdinaryUser ordinary;
    ExpectRefused(path);
    EXPECT_EQ(Err(), path + u": Permission denied\n"_s);
}

TEST_F(BadInput, AFileOf200MegabytesInOneLine)
{
    QFile large(InFolder(u"large.vmp"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.write("<root>") == 6);
    ASSERT_TRUE(large.resize(200'000'000));
    ExpectRefused(large.fileName());
}

TEST_F(BadInput, AHundredThousandNestedElements)
{
    ExpectRefused(QByteArray("<a>").repeated(100'000));
    ExpectRefused(QByteArray("<a>").repeated(100'000) + QByteArray("</a>").repeated(100'000));
}

TEST_F(BadInput, AnEntityBomb)
{
    QByteArray bomb = "<!DOCTYPE root [<!ENTITY a \"aaaaaaaaaaaaaaaa\">";
    for (char name = 'b'; name <= 'p'; ++name) {
        const QByteArray before = QByteArray("&") + char(name - 1) + ';';
        bomb += QByteArray("<!ENTITY ") + name + " \"" + before.repeated(16) + "\">";
    }
    ExpectRefused(bomb + "]><root><FormName>&p;</FormName></root>");
}

TEST_F(BadInput, AnEntityFromOutside)
{
    ExpectRefused(QByteArray("<!DOCTYPE root [<!ENTITY a SYSTEM \"file:///etc/hostname\">]>"
                             "<root><FormName>&a;</FormName></root>"));
}

TEST_F(BadInput, EveryTruncationOfAProject)
{
    const QByteArray whole = BytesOf(siteVisit);
    const QString path = InFolder(u"cut.vmp"_s);
    for (qsizetype length = 0; length < whole.size() - 2; ++length) {
        ASSERT_TRUE(WriteBytes(path, whole.first(length)));
        ASSERT_EQ(Run({u"review"_s, path}), 3) << length;
        ASSERT_EQ(Err().count(u'\n'), 1) << length;
    }
}

TEST_F(BadInput, EveryTruncationOfADatabase)
{
    const QByteArray whole = BytesOf(DataFile(u"palm/text.prc"_s));
    const QString path = InFolder(u"cut.prc"_s);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        ASSERT_TRUE(WriteBytes(path, whole.first(length)));
        const int status = Run({u"verify"_s, path});
        ASSERT_TRUE(status == 3 || status == 1) << length;
        ASSERT_EQ((Out() + Err()).isEmpty(), false) << length;
    }
}

TEST_F(BadInput, RandomBytes)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        QByteArray bytes(5000, Qt::Uninitialized);
        for (char &byte : bytes)
            byte = static_cast<char>(random());
        ExpectRefused(bytes);
    }
}

TEST_F(BadInput, Utf16OfSomethingElse)
{
    QByteArray bytes = "\xFF\xFE";
    for (const char letter : QByteArray("<html><body>Hello</body></html>"))
        bytes.append(letter).append('\0');
    ExpectRefused(bytes);
}

TEST_F(BadInput, AnEncodingThatTheBytesAreNotIn)
{
    const QByteArray project = BytesOf(siteVisit);
    ExpectRefused(QByteArray(project).replace("windows-1252", "klingon"));
    ExpectRefused(QByteArray(project).replace("windows-1252", "UTF-16"));
    ExpectRefused(QByteArray(project).replace("windows-1252", "UTF-8").replace("Fenced", "\xFF"));
}

TEST_F(BadInput, AFullDiskLeavesTheOldFile)
{
    const QString path = InFolder(u"kept.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "kept"));
    const QStringList before = NamesIn(m_folder.path());
    for (const QString &command : {u"rewrite"_s, u"script"_s}) {
        SCOPED_TRACE(command.toStdString());
        const FullDisk full(1000);
        EXPECT_EQ(Run({command, siteVisit, u"-o"_s, path}), 5);
        EXPECT_EQ(Err(), path + u": File too large\n"_s);
    }
    EXPECT_EQ(BytesOf(path), "kept");
    EXPECT_EQ(NamesIn(m_folder.path()), before);
}

TEST_F(BadInput, AFullDiskLeavesTheOldDatabase)
{
    const QString path = InFolder(u"out/SiteVisit.prc"_s);
    ASSERT_TRUE(WriteBytes(path, "kept"));
    const FullDisk full(1000);
    EXPECT_EQ(Run({u"create"_s, siteVisit, u"-o"_s, InFolder(u"out"_s)}), 5);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_TRUE(Err().endsWith(u": File too large\n"_s)) << Err().toStdString();
    EXPECT_EQ(BytesOf(path), "kept");
}

TEST_F(BadInput, AReadOnlyFolderLeavesTheOldFile)
{
    const QString path = InFolder(u"out/kept.rcp"_s);
    ASSERT_TRUE(WriteBytes(path, "kept"));
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    QFile::setPermissions(InFolder(u"out"_s), QFile::Permissions(0x5555));
    for (const QString &command : {u"rewrite"_s, u"script"_s}) {
        const AsOrdinaryUser ordinary;
        EXPECT_EQ(Run({command, siteVisit, u"-o"_s, path}), 5);
        EXPECT_EQ(Err(), path + u": Permission denied\n"_s);
    }
    QFile::setPermissions(InFolder(u"out"_s), QFile::Permissions(0x7755));
    EXPECT_EQ(BytesOf(path), "kept");
}

TEST_F(BadInput, AFolderInTheDatabasesPlaceStays)
{
    const QString path = InFolder(u"out/SiteVisit.prc"_s);
    ASSERT_TRUE(QDir().mkpath(path + u"/inner"_s));
    EXPECT_EQ(Run({u"create"_s, siteVisit, u"-o"_s, InFolder(u"out"_s)}), 5);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_TRUE(Err().startsWith(path + u": "_s)) << Err().toStdString();
    EXPECT_TRUE(QFileInfo(path).isDir());
}

TEST_F(BadInput, AFolderThatVanishedIsSaid)
{
    const QString path = InFolder(u"gone"_s);
    EXPECT_EQ(Run({u"create"_s, siteVisit, u"-o"_s, path}), 5);
    EXPECT_EQ(Err(), path + u": There is no such folder\n"_s);
    EXPECT_EQ(Run({u"script"_s, siteVisit, u"-o"_s, path + u"/a.rcp"_s}), 5);
    EXPECT_EQ(Err().count(u'\n'), 1);
}
