#include "ui/main/file_questions.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(Save, WritesTheFileThatTheUserChooses)
{
    const Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u"survey"_s});
    designer.Choose("mnuFileSave");

    EXPECT_EQ(prompts.fileDialogs(), QStringList{saveAs});
    const QString path = designer.projects + u"/survey.vmp"_s;
    EXPECT_EQ(designer.window.document().path(), path)
        << "in the projects folder, with the extension";
    EXPECT_TRUE(BytesOf(path).contains("<FormName><![CDATA[Survey]]></FormName>"));
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(Save, WritesAKnownFileWithoutADialog)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    const Designer designer(path);
    designer.Type("txtAppVersion", u"7"_s);
    const PromptScript prompts;
    designer.Click("cmdToolbar_1");
    EXPECT_TRUE(prompts.fileDialogs().isEmpty());
    EXPECT_FALSE(designer.ProjectChanged());
    EXPECT_TRUE(BytesOf(path).contains("7]]></FormVersion>"));
}

TEST(SaveAs, StartsWithTheFolderAndTheNameOfTheProject)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    const Designer designer(path);
    const PromptScript prompts({u"b"_s});
    designer.Choose("mnuFileSaveAS");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{saveAs});
    EXPECT_EQ(prompts.fileNames(), QStringList{u"a.vmp"_s});
    EXPECT_EQ(designer.window.document().path(), folder.filePath(u"b.vmp"_s));
    EXPECT_EQ(BytesOf(folder.filePath(u"b.vmp"_s)), BytesOf(path));
}

TEST(SaveAs, StartsInTheProjectsFolderForANewProject)
{
    const Designer designer;
    const PromptScript prompts({u"c"_s});
    designer.Choose("mnuFileSaveAS");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{saveAs});
    EXPECT_EQ(prompts.fileNames(), QStringList{u""_s});
    EXPECT_EQ(designer.window.document().path(), designer.projects + u"/c.vmp"_s);
}

} // namespace
