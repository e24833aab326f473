#include "help/compiler/make_help.h"

#include "help/help_topics.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Every file that the program's own topics name, each with its name as content.
QStringList WritePages(const QString &folder)
{
    QStringList names{helpDefaultPage, helpContents};
    for (const HelpTopic &topic : helpTopics)
        names += topic.page;
    for (const QString &name : names)
        EXPECT_TRUE(WriteBytes(folder + u'/' + name, name.toLatin1()));
    return names;
}

TEST(MakeHelp, WritesTheSameBytesWhereverTheFilesLie)
{
    QByteArray first;
    for (int run = 0; run < 2; ++run) {
        const QTemporaryDir folder;
        const QStringList names = WritePages(folder.path());
        const QString output = folder.filePath(u"Help.chm"_s);
        std::ostringstream err;
        ASSERT_EQ(MakeHelp(QStringList{output, folder.path()} + names, err), 0) << err.str();

        const QByteArray bytes = BytesOf(output);
        EXPECT_GT(bytes.size(), 0);
        EXPECT_FALSE(bytes.contains(folder.path().toUtf8())) << "names the folder";
        if (run == 0)
            first = bytes;
        else
            EXPECT_EQ(bytes, first);
    }
}

TEST(MakeHelp, SaysWhatStoodInTheWay)
{
    const QTemporaryDir folder;
    QStringList names = WritePages(folder.path());
    const QString output = folder.filePath(u"Help.chm"_s);
    const auto refusal = [](const QStringList &arguments) {
        std::ostringstream err;
        EXPECT_EQ(MakeHelp(arguments, err), 1);
        return QString::fromStdString(err.str());
    };

    EXPECT_TRUE(refusal({output, folder.path()}).contains(u"Usage"_s));
    EXPECT_TRUE(refusal(QStringList{output, folder.path(), u"gone.html"_s}).contains(u"gone.html"));
    names.removeAll(u"wizard.html"_s);
    EXPECT_TRUE(refusal(QStringList{output, folder.path()} + names).contains(u"wizard.html"_s));
    EXPECT_TRUE(WriteBytes(folder.filePath(u"a.html"_s),
                           R"(<a href="name.html">1</a> <a href="name.html#no">2</a>)"
                           R"(<img src="no.png"> <a href="https://vellumo.example">3</a>)"));
    const QString broken = refusal(QStringList{output, folder.path(), u"a.html"_s} + names);
    EXPECT_TRUE(broken.contains(u"a.html: name.html#no\na.html: no.png\n"_s))
        << broken.toStdString();
    EXPECT_FALSE(QFile::exists(output));
    const QString nowhere = folder.filePath(u"none/Help.chm"_s);
    EXPECT_TRUE(refusal(QStringList{nowhere, folder.path()} + WritePages(folder.path()))
                    .contains(u"none/Help.chm"_s));
}

} // namespace
