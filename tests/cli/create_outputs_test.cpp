#include "create_run.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Of a database, in seconds since 1904: when it was made and last changed.
QByteArray Times(const QByteArray &database)
{
    return database.mid(36, 8).toHex();
}

class CreateOutputs : public CreateCommand
{
protected:
    ~CreateOutputs() override { qunsetenv("SOURCE_DATE_EPOCH"); }

    QByteArray MadeBy(const QStringList &options)
    {
        const QString file = InFolder(u"one.prc"_s);
        QFile::remove(file);
        EXPECT_EQ(Run(QStringList{u"create"_s, fittingNestbox, u"-o"_s, file} + options), 0)
            << Err().toStdString();
        return BytesOf(file);
    }
};

} // namespace

TEST_F(CreateOutputs, AreAFileThatIsNamed)
{
    const QString file = InFolder(u"other name.PRC"_s);
    EXPECT_EQ(Run({u"create"_s, fittingNestbox, u"-o"_s, file}), 0) << Err().toStdString();
    EXPECT_EQ(Out(), file + u'\n');
    EXPECT_TRUE(BytesOf(file).startsWith("Nestbox\0"));
}

TEST_F(CreateOutputs, AreNoOneFileForSeveralProjects)
{
    const QString file = InFolder(u"both.prc"_s);
    EXPECT_EQ(Run({u"create"_s, fittingNestbox, siteVisit, u"-o"_s, file}), 2);
    EXPECT_EQ(Err(), u"vellumo: -o names one file for several projects; name a folder.\n"_s);
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(CreateOutputs, AreStandardOutput)
{
    const QStringList identifier = {u"--guid"_s, QString(32, u'B')};
    EXPECT_EQ(Run(QStringList{u"create"_s, fittingNestbox, u"-o"_s, u"-"_s} + identifier), 0);
    EXPECT_EQ(Err(), u""_s);
    const QByteArray database = QByteArray::fromStdString(out.str());
    EXPECT_EQ(database, MadeBy(identifier));
    EXPECT_EQ(Run(QStringList{u"create"_s, u"-"_s, u"-o-"_s} + identifier, BytesOf(fittingNestbox)),
              0);
    EXPECT_EQ(QByteArray::fromStdString(out.str()), database);

    EXPECT_EQ(Run({u"create"_s, fittingNestbox, siteVisit, u"-o"_s, u"-"_s}), 2);
    EXPECT_EQ(Err(), u"vellumo: -o names one file for several projects; name a folder.\n"_s);
    EXPECT_EQ(Run({u"create"_s, u"--json"_s, fittingNestbox, u"-o"_s, u"-"_s}), 2);
    ASSERT_EQ(Objects().size(), 1);
    EXPECT_EQ(Objects()[0][u"message"_s],
              u"With --json the output needs a file of its own: -o FILE."_s);
    EXPECT_FALSE(QFileInfo::exists(u"-"_s));
}

TEST_F(CreateOutputs, AreAFolderThatIsMade)
{
    EXPECT_EQ(Run({u"create"_s, fittingNestbox, u"-o"_s, InFolder(u"new/deep/"_s)}), 0)
        << Err().toStdString();
    EXPECT_TRUE(QFile::exists(InFolder(u"new/deep/Nestbox.prc"_s)));
    WriteBytes(InFolder(u"file"_s), "");
    EXPECT_EQ(Run({u"create"_s, fittingNestbox, u"-o"_s, InFolder(u"file/in/"_s)}), 5);
    EXPECT_EQ(Err(), InFolder(u"file/in/"_s) + u": The folder cannot be made\n"_s);
}

TEST_F(CreateOutputs, AreAFolderWhoseNameEndsLikeAFiles)
{
    QDir(m_folder.path()).mkdir(u"forms.prc"_s);
    EXPECT_EQ(Run({u"create"_s, fittingNestbox, siteVisit, u"-o"_s, InFolder(u"forms.prc"_s)}), 0);
    EXPECT_TRUE(QFile::exists(InFolder(u"forms.prc/Nestbox.prc"_s)));
}

TEST_F(CreateOutputs, AreTheSameWithAnIdentifierOfOnesOwn)
{
    const QByteArray made = MadeBy({u"--guid"_s, QString(32, u'B')});
    EXPECT_EQ(Times(made), "b492f400b492f400") << "the first second of 2000";
    EXPECT_TRUE(made.contains(QByteArray(32, 'B') + '\0'));
    EXPECT_EQ(MadeBy({u"--guid"_s, QString(32, u'B')}), made);
}

TEST_F(CreateOutputs, AreTheSameAtADateOfOnesOwn)
{
    qputenv("SOURCE_DATE_EPOCH", "1");
    const QByteArray made = MadeBy({});
    EXPECT_EQ(Times(made), "7c25b0817c25b081");
    const QByteArray hash =
        QCryptographicHash::hash(BytesOf(fittingNestbox), QCryptographicHash::Sha256)
            .toHex()
            .toUpper();
    EXPECT_TRUE(made.contains(hash.first(32) + '\0'));
    EXPECT_EQ(MadeBy({}), made);
}

TEST_F(CreateOutputs, AreNotMadeAtADateThatADatabaseCannotHold)
{
    for (const char *epoch : {"-1", "x", "2212122496", "1.5", "99999999999999999999"}) {
        qputenv("SOURCE_DATE_EPOCH", epoch);
        EXPECT_EQ(Run({u"create"_s, fittingNestbox, u"-o"_s, InFolder(u"one.prc"_s)}), 2);
        EXPECT_EQ(Err(), u"vellumo: SOURCE_DATE_EPOCH must be 0 to 2212122495 seconds.\n"_s);
    }
    qputenv("SOURCE_DATE_EPOCH", "2212122495");
    EXPECT_EQ(Times(MadeBy({})), "ffffffffffffffff");
}
