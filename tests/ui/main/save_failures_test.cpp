#include "support/ordinary_user.h"
#include "ui/main/file_questions.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(Save, SaysWhyItCouldNotBeDoneAndLeavesTheOldFileWhole)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    const QByteArray before = BytesOf(path);
    const Designer designer(path);
    designer.Find<QLineEdit>("txtAppVersion")->setText(u"\u0416"_s);

    const PromptScript prompts({u"OK"_s});
    designer.Choose("mnuFileSave");
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(prompts.boxes()[0].title, u"Vellumo Designer"_s);
    EXPECT_TRUE(prompts.boxes()[0].text.contains(u"\u0416"_s)) << "names the character";
    EXPECT_EQ(prompts.boxes()[0].informative, path + u": "_s + prompts.boxes()[0].text);
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_TRUE(designer.ProjectChanged());
    EXPECT_EQ(designer.window.document().path(), path);
}

TEST(Save, SaysWhyAFolderCannotBeWritten)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    const QByteArray before = BytesOf(path);
    const Designer designer(path);
    designer.Type("txtAppVersion", u"7"_s);

    QFile::setPermissions(folder.path(),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    const PromptScript prompts({u"OK"_s});
    {
        const AsOrdinaryUser ordinary;
        designer.Choose("mnuFileSave");
    }
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(prompts.boxes()[0].text, u"Permission denied"_s);
    EXPECT_EQ(prompts.boxes()[0].informative, path + u": Permission denied"_s);
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_TRUE(designer.ProjectChanged());
}

TEST(Save, TellsWhichTextMakesTheFileUnreadable)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    const Designer designer(path);
    designer.Find<QLineEdit>("txtAppVersion")->setText(u"1]]>2"_s);

    const PromptScript prompts({u"OK"_s, u"Yes"_s, u"OK"_s});
    designer.Choose("mnuFileSave");
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Warning);
    EXPECT_EQ(prompts.boxes()[0].title, u"Vellumo Designer"_s);
    EXPECT_EQ(prompts.boxes()[0].text,
              u"The project is saved, but its file cannot be opened again: \"]]>\" ends a text too "
              "early. Please change what has it, and save again:\n\nform version: \"1]]>2\""_s);
    EXPECT_TRUE(BytesOf(path).contains("<FormVersion><![CDATA[1]]>2]]></FormVersion>"));
    EXPECT_FALSE(designer.ProjectChanged()) << "it was saved all the same";

    designer.Find<QLineEdit>("txtAppVersion")->setText(u"2]]>"_s);
    designer.Choose("mnuFileNew");
    EXPECT_EQ(prompts.texts().size(), 3);
    EXPECT_EQ(designer.project().FormName, u""_s) << "and what was to come after it came";
}

} // namespace
