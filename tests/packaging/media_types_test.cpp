#include "support/files.h"
#include "support/print.h"

#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString project = u"application/x-vellumo-project"_s;
const QString database = u"application/x-vellumo-database"_s;

const QString systemTypes = u"mime/packages/freedesktop.org.xml"_s;

/// The system's media types with ours among them, as an installation in /usr has it, in a data
/// folder of the test's own.
class MediaTypes : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        const QString update = QStandardPaths::findExecutable(u"update-mime-database"_s);
        const QString system =
            QStandardPaths::locate(QStandardPaths::GenericDataLocation, systemTypes);
        const QString mime = dataFolder.filePath(u"mime"_s);
        ASSERT_TRUE(QDir().mkpath(mime + u"/packages"_s));
        isPrepared = QFile::copy(system, dataFolder.filePath(systemTypes)) && !update.isEmpty();
        ASSERT_TRUE(QFile::copy(QStringLiteral(MEDIA_TYPES), mime + u"/packages/vellumo.xml"_s));
        if (isPrepared) {
            ASSERT_EQ(QProcess::execute(update, {mime}), 0);
        }
        qputenv("XDG_DATA_HOME", QFile::encodeName(dataFolder.path()));
        qputenv("XDG_DATA_DIRS", "/none");
    }

    void SetUp() override
    {
        if (!isPrepared)
            GTEST_SKIP() << "no update-mime-database or no media types of the system";
    }

    static QString ByContent(const QByteArray &bytes)
    {
        return QMimeDatabase().mimeTypeForData(bytes).name();
    }
    static QString ByName(const QString &name)
    {
        return QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
    }
    /// Of a file with this name and these bytes.
    static QString ByBoth(const QString &name, const QByteArray &bytes)
    {
        return QMimeDatabase().mimeTypeForFileNameAndData(name, bytes).name();
    }

    inline static const QTemporaryDir dataFolder;
    inline static bool isPrepared = false;
};

/// A database of the handheld that begins with these eight letters of type and creator.
QByteArray DatabaseOf(const QByteArray &typeAndCreator)
{
    QByteArray bytes = BytesOf(DataFile(u"palm/q128.prc"_s));
    EXPECT_EQ(bytes.mid(60, 8), "kelpWmpt");
    return bytes.replace(60, 8, typeAndCreator);
}

TEST_F(MediaTypes, KnowAProjectByItsName)
{
    EXPECT_EQ(ByName(u"/nowhere/a.vmp"_s), project);
    EXPECT_EQ(ByName(QStringLiteral(EXAMPLES "/SiteVisit.vmp")), project);
    const QMimeType type = QMimeDatabase().mimeTypeForName(project);
    EXPECT_EQ(type.preferredSuffix(), u"vmp"_s);
    EXPECT_TRUE(type.inherits(u"application/xml"_s));
}

TEST_F(MediaTypes, KnowAProjectByItsContent)
{
    const QByteArray bytes = BytesOf(QStringLiteral(EXAMPLES "/SiteVisit.vmp"));
    EXPECT_EQ(ByContent(bytes), project);
    EXPECT_EQ(ByContent("\xEF\xBB\xBF" + bytes), project) << "with a byte order mark";
    EXPECT_EQ(ByContent(QByteArray(bytes).replace("Brindlecot", "Harlo")), project);
    EXPECT_EQ(ByContent(QByteArray(bytes).replace("Brindlecot", "Another")), u"application/xml"_s);
    EXPECT_EQ(ByContent("<Company>Brindlecot Data Collect</Company>"), u"text/plain"_s);
}

TEST_F(MediaTypes, KnowADatabaseByItsContentAlone)
{
    EXPECT_EQ(ByContent(DatabaseOf("kelpWmpt")), database);
    EXPECT_EQ(ByBoth(u"a"_s, DatabaseOf("kelpWmpt")), database);
    EXPECT_NE(ByContent(DatabaseOf("kelpOthr")), database);
    EXPECT_NE(ByContent(DatabaseOf("applWmpt")), database);
    const QMimeType type = QMimeDatabase().mimeTypeForName(database);
    EXPECT_TRUE(type.inherits(u"application/vnd.palm"_s));
    EXPECT_TRUE(type.globPatterns().isEmpty());
}

TEST_F(MediaTypes, LeaveOtherProgramsAndBooksOfTheHandheldWhatTheyAre)
{
    const QString name = u"a.prc"_s, book = u"application/x-mobipocket-ebook"_s;
    EXPECT_EQ(ByBoth(name, DatabaseOf("applOthr")), u"application/vnd.palm"_s);
    EXPECT_EQ(ByBoth(name, DatabaseOf("BOOKMOBI")), book);
    EXPECT_EQ(ByContent(DatabaseOf("BOOKMOBI")), book);
    EXPECT_EQ(ByBoth(name, DatabaseOf("kelpWmpt")), u"application/vnd.palm"_s)
        << "an ending that others have goes before the content";
}

} // namespace
