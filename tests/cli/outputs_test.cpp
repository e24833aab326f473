#include "vellumo_run.h"

#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Outputs that are no files, or that others laid there.
class Outputs : public VellumoRun
{
protected:
    Outputs()
    {
        qputenv("PATH", PROGRAMS);
        QDir(m_folder.path()).mkdir(u"out"_s);
    }

    QByteArray Name(const QString &name) const { return QFile::encodeName(InFolder(name)); }

    /// Runs a command while somebody reads the pipe; what arrives there.
    QByteArray ReadFrom(const QString &pipe, const QStringList &words)
    {
        QByteArray read;
        std::thread reader([&] { read = BytesOf(InFolder(pipe)); });
        EXPECT_EQ(Run(words), 0) << Err().toStdString();
        reader.join();
        EXPECT_TRUE(IsPipe(pipe)) << "it stays one";
        return read;
    }

    bool IsPipe(const QString &name) const
    {
        struct stat status = {};
        return lstat(Name(name), &status) == 0 && S_ISFIFO(status.st_mode);
    }
};

} // namespace

TEST_F(Outputs, APipeGetsWhatAFileWouldGet)
{
    ASSERT_EQ(mkfifo(Name(u"pipe"_s), 0600), 0);
    const QString guid = QString(32, u'A'), file = InFolder(u"file"_s), pipe = InFolder(u"pipe"_s);
    EXPECT_EQ(Run({u"script"_s, siteVisit, u"-o"_s, file, u"--guid"_s, guid}), 0);
    EXPECT_EQ(ReadFrom(u"pipe"_s, {u"script"_s, siteVisit, u"-o"_s, pipe, u"--guid"_s, guid}),
              BytesOf(file));
    EXPECT_EQ(Run({u"rewrite"_s, siteVisit, u"-o"_s, file}), 0);
    EXPECT_EQ(ReadFrom(u"pipe"_s, {u"rewrite"_s, siteVisit, u"--output"_s, pipe}), BytesOf(file));
}

TEST_F(Outputs, APipeInTheDatabasesPlaceGetsTheDatabase)
{
    ASSERT_EQ(mkfifo(Name(u"out/SiteVisit.prc"_s), 0600), 0);
    EXPECT_TRUE(
        ReadFrom(u"out/SiteVisit.prc"_s, {u"create"_s, siteVisit, u"-o"_s, InFolder(u"out"_s)})
            .startsWith("SiteVisit\0"));
}

TEST_F(Outputs, AnInputOfAnotherKindStays)
{
    const QString project = InFolder(u"SiteVisit.prc"_s), link = InFolder(u"link.prc"_s);
    const QByteArray bytes = BytesOf(siteVisit);
    ASSERT_TRUE(WriteBytes(project, bytes) && QFile::link(project, link));
    const QStringList lines[] = {
        {u"script"_s, project},
        {u"recover"_s, project},
        {u"export"_s, u"--csv"_s, project},
        {u"export"_s, u"--xlsform"_s, u"--lossy"_s, project},
        {u"import"_s, project},
        {u"import"_s, project, u"--into"_s, siteVisit},
        {u"items"_s, siteVisit, u"--question"_s, u"3"_s, u"--from"_s, project},
        {u"screens"_s, siteVisit, project},
        {u"create"_s, project},
    };
    for (const QStringList &words : lines)
        for (const QString &output : {project, link, InFolder(u"./SiteVisit.prc"_s)}) {
            SCOPED_TRACE((words.join(u' ') + " -o "_L1 + output).toStdString());
            EXPECT_EQ(Run(words + QStringList{u"-o"_s, output}), 2);
            EXPECT_TRUE(Err().endsWith(
                u"vellumo: The output would take the place of the input '%1'.\n"_s.arg(project)))
                << err.str();
            EXPECT_EQ(Out(), u""_s);
            EXPECT_EQ(BytesOf(project), bytes);
        }
    EXPECT_EQ(Run({u"create"_s, project, u"-o"_s, m_folder.path()}), 2) << "by the form's name";
    EXPECT_EQ(BytesOf(project), bytes);
}

TEST_F(Outputs, AProjectMayTakeThePlaceOfOne)
{
    const QString project = InFolder(u"a.vmp"_s), list = InFolder(u"list"_s);
    ASSERT_TRUE(WriteBytes(project, BytesOf(siteVisit)) && WriteBytes(list, "Oak\n"));
    ASSERT_TRUE(WriteBytes(InFolder(u"a.csv"_s), "Question,Type,Column Name\nWhy?,Text,W\n"));
    const QStringList lines[] = {
        {u"rewrite"_s, project},
        {u"items"_s, project, u"--question"_s, u"3"_s, u"--from"_s, list},
        {u"import"_s, InFolder(u"a.csv"_s), u"--into"_s, project},
        {u"merge"_s, project, siteVisit},
    };
    for (const QStringList &words : lines)
        EXPECT_EQ(Run(words + QStringList{u"-o"_s, project}), 0) << err.str();
}

TEST_F(Outputs, APipeThatNobodyReadsAnyMoreIsAnError)
{
    int pipe[2];
    ASSERT_EQ(pipe2(pipe, O_CLOEXEC), 0);
    close(pipe[0]);
    const QString path = u"/dev/fd/%1"_s.arg(pipe[1]);
    EXPECT_EQ(Run({u"script"_s, siteVisit, u"-o"_s, path}), 5);
    close(pipe[1]);
    EXPECT_EQ(Err(), path + u": Broken pipe\n"_s);
}

TEST_F(Outputs, ADescriptorKeepsWhatWasWrittenBefore)
{
    ASSERT_TRUE(WriteBytes(InFolder(u"log"_s), "before\n"));
    const int log = open(Name(u"log"_s), O_WRONLY | O_APPEND);
    EXPECT_EQ(Run({u"script"_s, siteVisit, u"-o"_s, u"/dev/fd/%1"_s.arg(log)}), 0);
    close(log);
    EXPECT_TRUE(BytesOf(InFolder(u"log"_s)).startsWith("before\n"));
    EXPECT_GT(BytesOf(InFolder(u"log"_s)).size(), 1000);
}

TEST_F(Outputs, AProjectFromAPipeIsNotRewrittenInItsPlace)
{
    ASSERT_EQ(mkfifo(Name(u"pipe"_s), 0600), 0);
    const int stream = open(QFile::encodeName(siteVisit), O_RDONLY);
    for (const QString &input : {InFolder(u"pipe"_s), u"/dev/fd/%1"_s.arg(stream)}) {
        SCOPED_TRACE(input.toStdString());
        EXPECT_EQ(Run({u"rewrite"_s, input}), 2);
        EXPECT_EQ(Err(),
                  input + u": What is no file cannot be rewritten in its place: -o FILE.\n"_s);
    }
    EXPECT_EQ(Run({u"rewrite"_s, u"/dev/fd/%1"_s.arg(stream), u"-o"_s, InFolder(u"a.vmp"_s)}), 0);
    close(stream);
    EXPECT_EQ(BytesOf(InFolder(u"a.vmp"_s)), BytesOf(siteVisit));
}

TEST_F(Outputs, ALinkThatSomebodyElseLaidIsNamedAndNotFollowed)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make the links of others";
    constexpr uid_t nobody = 65534;
    const QString victim = InFolder(u"victim"_s);
    ASSERT_TRUE(WriteBytes(victim, "kept"));
    ASSERT_EQ(chmod(Name(u"out"_s), 01777), 0);
    const QString link = InFolder(u"out/SiteVisit.prc"_s);
    ASSERT_EQ(symlink("../victim", QFile::encodeName(link)), 0);
    ASSERT_EQ(lchown(QFile::encodeName(link), nobody, nobody), 0);
    const QString refusal = link + u": The link 'SiteVisit.prc' is somebody else's, in a folder "
                                   "where others may write\n"_s;
    EXPECT_EQ(Run({u"create"_s, siteVisit, u"-o"_s, InFolder(u"out"_s)}), 5);
    EXPECT_EQ(Err(), refusal);
    EXPECT_EQ(Run({u"script"_s, siteVisit, u"-o"_s, link}), 5);
    EXPECT_EQ(Err(), refusal);
    EXPECT_EQ(BytesOf(victim), "kept");
}
