#include "vellumo_run.h"

#include "model/project_reader.h"
#include "model/project_writer.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString examples = DataFile(u"../../examples"_s);

class NewCommand : public VellumoRun
{
protected:
    QByteArray OutBytes() const { return QByteArray::fromStdString(out.str()); }
};

} // namespace

TEST_F(NewCommand, WritesAnEmptyProjectOfThatName)
{
    const QString target = InFolder(u"\u00e9.vmp"_s);
    EXPECT_EQ(Run({u"new"_s, u"Caf\u00e9s"_s, u"-o"_s, target}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    EXPECT_EQ(BytesOf(target), *WriteProject({.FormName = u"Caf\u00e9s"_s}));
    EXPECT_EQ(Run({u"new"_s, u"Caf\u00e9s"_s}), 0);
    EXPECT_EQ(OutBytes(), BytesOf(target));
    EXPECT_EQ(Run({u"new"_s, u"Caf\u00e9s"_s, u"-o"_s, u"-"_s}), 0);
    EXPECT_EQ(OutBytes(), BytesOf(target));
}

TEST_F(NewCommand, StartsFromEachOfTheExamples)
{
    const QStringList files = QDir(examples).entryList({u"*.vmp"_s}, QDir::Files, QDir::Name);
    EXPECT_GE(files.size(), 3);
    for (const QString &file : files) {
        SCOPED_TRACE(file.toStdString());
        const QString name = file.chopped(4);
        EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--from"_s, name}), 0);
        EXPECT_EQ(OutBytes(), BytesOf(examples + u'/' + file)
                                  .replace("<FormName><![CDATA[" + name.toLatin1() + "]]>",
                                           "<FormName><![CDATA[Mine]]>"));
    }
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--from"_s, u"nothing"_s}), 2);
    EXPECT_EQ(Err(), u"vellumo: There is no example 'nothing'. There are: %1.\n"_s.arg(
                         files.join(u", "_s).remove(u".vmp"_s)));
}

TEST_F(NewCommand, SuggestsWhatMayBeMeant)
{
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--from"_s, u"SiteVist"_s}), 2);
    EXPECT_EQ(Err(), u"vellumo: There is no example 'SiteVist'. Did you mean 'SiteVisit'? "
                     "There are: ShelfAudit, SiteVisit, WaterPoint.\n"_s);
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--from"_s, u"../examples/SiteVisit"_s}), 2);
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--from="_s}), 2);
}

TEST_F(NewCommand, RefusesANameThatNoVellsheetMayHave)
{
    const struct {
        QString name, message;
    } rows[] = {
        {u"My form"_s, u"Spaces in the Vellsheet name are not allowed."_s},
        {u"a/b"_s, u"\"\\/:*?<>|are not allowed for file name"_s},
        {QString(25, u'x'), u"Please keep the Vellsheet name under 24 characters in length."_s},
        {u"  "_s, u"Please enter a name for your Vellsheet."_s},
    };
    const QString target = InFolder(u"new.vmp"_s);
    for (const auto &row : rows) {
        EXPECT_EQ(Run({u"new"_s, row.name, u"-o"_s, target}), 2);
        EXPECT_EQ(Err(), u"vellumo: '%1' cannot be its name. %2\n"_s.arg(row.name, row.message));
    }
    EXPECT_EQ(Run({u"new"_s, u"\u03a9"_s, u"-o"_s, target}), 2);
    EXPECT_TRUE(Err().startsWith("vellumo: "_L1) && Err().contains("form name"_L1)) << err.str();
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList());
    EXPECT_EQ(Run({u"new"_s, QString(24, u'x'), u"-o"_s, target}), 0);
}

TEST_F(NewCommand, LeavesAFileThatIsThere)
{
    const QString target = InFolder(u"old.vmp"_s);
    ASSERT_TRUE(WriteBytes(target, "old"));
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"-o"_s, target}), 5);
    EXPECT_EQ(Err(), target + u": There is something of this name, and it stays as it is.\n"_s);
    EXPECT_EQ(BytesOf(target), "old");
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"-o"_s, m_folder.path()}), 5);
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"-o"_s, InFolder(u"none/a.vmp"_s)}), 5);
}

TEST_F(NewCommand, WritesIntoADevice)
{
    const QString device = InFolder(u"null"_s);
    if (mknod(QFile::encodeName(device), S_IFCHR | 0666, (1U << 8U) | 3U) != 0)
        GTEST_SKIP() << "only root may make a device";
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"-o"_s, device}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    EXPECT_EQ(QFileInfo(device).size(), 0);
}

TEST_F(NewCommand, TellsProgramsInJson)
{
    const QString target = InFolder(u"new.vmp"_s);
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--json"_s}), 2) << "no place for objects";
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--json"_s, u"-o"_s, target}), 0);
    ASSERT_EQ(Objects().size(), 1);
    EXPECT_EQ(Objects()[0][u"code"_s], u"new"_s);
    EXPECT_EQ(Objects()[0][u"file"_s], target);
    EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--json"_s, u"-o"_s, target}), 5);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"code"_s], u"not-written"_s);
}
