#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A project that is open and changed here.
class ChangedFile : public testing::Test
{
protected:
    ChangedFile()
    {
        EXPECT_TRUE(WriteBytes(m_path, BytesOf(sample)));
        m_designer.emplace(m_path);
        m_designer->Type("txtAppVersion", u"7"_s);
    }

    bool HoldsOurs() const { return BytesOf(m_path).contains("7]]></FormVersion>"); }
    QString Question() const
    {
        return m_path + u"\r\nhas been changed by another program since you opened or saved it. "
                        "Do you want to save your project over it?"_s;
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"a.vmp"_s);
    std::optional<Designer> m_designer;
};

TEST_F(ChangedFile, IsReplacedOnlyWhenTheUserSaysSo)
{
    ASSERT_TRUE(WriteBytes(m_path, "of another program"));
    const PromptScript prompts({u"No"_s, u""_s, u"Yes"_s});
    m_designer->Choose("mnuFileSave");
    m_designer->Click("cmdToolbar_1");
    EXPECT_EQ(BytesOf(m_path), "of another program");
    EXPECT_TRUE(m_designer->ProjectChanged());

    m_designer->Choose("mnuFileSave");
    EXPECT_TRUE(HoldsOurs());
    EXPECT_FALSE(m_designer->ProjectChanged());
    EXPECT_EQ(prompts.texts(), QStringList(3, Question()));
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Question);
    EXPECT_EQ(prompts.boxes()[0].buttons, (QStringList{u"Yes"_s, u"No"_s}));
    EXPECT_EQ(prompts.boxes()[0].defaultButton, u"No"_s);
}

TEST_F(ChangedFile, IsAskedAboutOnce)
{
    ASSERT_TRUE(WriteBytes(m_path, "of another program"));
    const PromptScript prompts({u"Yes"_s, u"Yes"_s});
    m_designer->Choose("mnuFileSave");
    m_designer->Choose("mnuFileSave");
    EXPECT_EQ(prompts.texts(), QStringList{Question()});
    ASSERT_TRUE(WriteBytes(m_path, "and again"));
    m_designer->Choose("mnuFileSave");
    EXPECT_EQ(prompts.texts(), QStringList(2, Question())) << "since it was saved here";
}

TEST_F(ChangedFile, MayBeGoneOrTheSame)
{
    ASSERT_TRUE(WriteBytes(m_path, BytesOf(sample)));
    const PromptScript prompts;
    m_designer->Choose("mnuFileSave");
    EXPECT_TRUE(HoldsOurs());
    ASSERT_TRUE(QFile::remove(m_path));
    m_designer->Choose("mnuFileSave");
    EXPECT_TRUE(HoldsOurs());
}

TEST_F(ChangedFile, ThatIsNotReplacedIsASaveThatDidNotHappen)
{
    ASSERT_TRUE(WriteBytes(m_path, "of another program"));
    const PromptScript prompts({u"Yes"_s, u"No"_s});
    m_designer->Choose("mnuFileNew");
    EXPECT_EQ(
        prompts.texts(),
        (QStringList{u"Do you want to save changes to your Vellsheet project?"_s, Question()}));
    EXPECT_EQ(m_designer->window.document().path(), m_path) << "the project is still there";
    EXPECT_EQ(BytesOf(m_path), "of another program");
}

TEST_F(ChangedFile, IsAskedAboutInSaveAsToo)
{
    ASSERT_TRUE(WriteBytes(m_path, "of another program"));
    const PromptScript prompts({m_path, u"Yes"_s, u"No"_s});
    m_designer->Choose("mnuFileSaveAS");
    EXPECT_EQ(prompts.fileDialogs().size(), 1);
    ASSERT_EQ(prompts.boxes().size(), 2u);
    EXPECT_EQ(prompts.boxes()[1].text, Question()) << "after the dialog's own question";
    EXPECT_EQ(BytesOf(m_path), "of another program");
}

TEST_F(ChangedFile, IsAnotherOneInSaveAs)
{
    const QString other = m_folder.filePath(u"b.vmp"_s);
    ASSERT_TRUE(WriteBytes(other, "of another program"));
    const PromptScript prompts({other, u"Yes"_s});
    m_designer->Choose("mnuFileSaveAS");
    EXPECT_EQ(prompts.fileDialogs().size(), 1);
    EXPECT_EQ(prompts.boxes().size(), 1u) << "the dialog's own question";
    EXPECT_EQ(m_designer->window.document().path(), other);
    EXPECT_TRUE(BytesOf(other).contains("7]]></FormVersion>"));
}

} // namespace
