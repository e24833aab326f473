#include "ui/main/rescue_copy.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class ARescueCopy : public testing::Test
{
protected:
    RescueCopy Make() const
    {
        Result<RescueCopy> made = RescueCopy::Make(m_state);
        EXPECT_TRUE(made);
        return *made;
    }

    void Leave(const QString &formName) const
    {
        Snapshot snapshot;
        snapshot.project.FormName = formName;
        EXPECT_TRUE(Make().Write(snapshot));
    }

    /// The file of the only copy.
    QString File() const { return m_state + u'/' + NamesIn(m_state).value(0) + u"/project"_s; }

    QTemporaryDir m_folder;
    const QString m_state = m_folder.filePath(u"state/vellumo"_s); ///< is made when it is needed
};

TEST_F(ARescueCopy, IsFoundOnceItsDesignerIsGone)
{
    EXPECT_TRUE(RescueCopy::TakeOver(m_state).empty());
    {
        const RescueCopy copy = Make();
        Snapshot snapshot;
        snapshot.project.FormName = u"Survey"_s;
        ASSERT_TRUE(copy.Write(snapshot));
        snapshot.project.FormName = u"Survey 2"_s;
        ASSERT_TRUE(copy.Write(snapshot));
        EXPECT_TRUE(RescueCopy::TakeOver(m_state).empty()) << "its designer lives";
    }
    std::vector<RescueCopy> left = RescueCopy::TakeOver(m_state);
    ASSERT_EQ(left.size(), 1u);
    const std::optional<Snapshot> read = left[0].Read();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->project.FormName, u"Survey 2"_s);
    left[0].Remove();
    EXPECT_EQ(NamesIn(m_state), QStringList());
}

TEST_F(ARescueCopy, ThatWasNeverWrittenIsRemoved)
{
    (void)Make();
    ASSERT_EQ(NamesIn(m_state).size(), 1);
    EXPECT_TRUE(RescueCopy::TakeOver(m_state).empty());
    EXPECT_EQ(NamesIn(m_state), QStringList());
}

TEST_F(ARescueCopy, ThatIsDamagedHoldsNothingAndStays)
{
    Leave(u"Survey"_s);
    const QByteArray whole = BytesOf(File());
    const QByteArray damaged[] = {"", "x", whole.chopped(1), whole + 'x', QByteArray(1000, '\0')};
    for (const QByteArray &bytes : damaged) {
        ASSERT_TRUE(WriteBytes(File(), bytes));
        const std::vector<RescueCopy> left = RescueCopy::TakeOver(m_state);
        ASSERT_EQ(left.size(), 1u);
        EXPECT_FALSE(left[0].Read());
        EXPECT_EQ(BytesOf(File()), bytes);
    }
    ASSERT_TRUE(WriteBytes(File(), whole));
    EXPECT_TRUE(RescueCopy::TakeOver(m_state).at(0).Read());
}

TEST_F(ARescueCopy, IsRefusedWhereItsFolderCannotBe)
{
    ASSERT_TRUE(WriteBytes(m_folder.filePath(u"state"_s), "a file in the way"));
    EXPECT_FALSE(RescueCopy::Make(m_state));
    EXPECT_TRUE(RescueCopy::TakeOver(m_state).empty());
}

} // namespace
