// What holds for the differences of whatever projects.

#include "editing/question_list.h"
#include "exchange/codebook.h"
#include "exchange/merged_project.h"
#include "exchange/project_difference.h"
#include "property/random_projects.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr int rounds = 300;

/// Moves a question to another place; false where there is none.
bool MoveOne(Project &project, Random &random)
{
    const int count = project.source.QuestionCount();
    if (count < 2)
        return false;
    const int from = random.Below(count);
    const int to = (from + random.Between(1, count - 1)) % count;
    project.source.SetPosition(from);
    return MoveQuestion(project.source, to - from);
}

} // namespace

TEST(RandomDifferences, AreNoneOfAProjectAndItself)
{
    Random random;
    for (int round = 0; round < rounds; ++round) {
        const Project project = RandomProject(random, Letters::Anything);
        EXPECT_TRUE(DifferencesOf(project, project).empty());
    }
}

TEST(RandomDifferences, AreThereWhereverTextsDiffer)
{
    Random random;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        const Project before = RandomSoundProject(random);
        Project after = before;
        after.source.SetPosition(random.Below(after.source.QuestionCount()));
        QuestionRow &row = after.source.Questions().Current();
        constexpr QString QuestionRow::*texts[] = {&QuestionRow::Title, &QuestionRow::Question,
                                                   &QuestionRow::ColumnName};
        row.*random.OneOf(texts) += u"!"_s;
        const std::vector<Difference> found = DifferencesOf(before, after);
        ASSERT_EQ(found.size(), 1u);
        EXPECT_EQ(found[0].kind, DifferenceKind::QuestionChanged);
        EXPECT_EQ(found[0].after, found[0].before + u'!');
        EXPECT_EQ(found[0].columnName, row.ColumnName);
    }
}

TEST(RandomDifferences, TellOneMoveOfOneMovedQuestion)
{
    Random random;
    int moves = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        const Project before = RandomSoundProject(random);
        Project after = before;
        if (!MoveOne(after, random))
            continue;
        ++moves;
        const std::vector<Difference> found = DifferencesOf(before, after);
        ASSERT_EQ(found.size(), 1u);
        EXPECT_EQ(found[0].kind, DifferenceKind::QuestionMoved);
    }
    EXPECT_GT(moves, rounds / 2);
}

TEST(RandomDifferences, OfAMergedProjectAreTheQuestionsThatCame)
{
    Random random;
    int merged = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        const Project one = RandomSoundProject(random), other = RandomSoundProject(random);
        Project both = one;
        const int count = one.source.QuestionCount(), coming = other.source.QuestionCount();
        ASSERT_EQ(bool(AppendProject(both, other)), count + coming <= 128);
        const std::vector<Difference> found = DifferencesOf(one, both);
        if (both.source.QuestionCount() == count) {
            EXPECT_TRUE(found.empty()) << "it was refused";
            continue;
        }
        ++merged;
        ASSERT_EQ(found.size(), static_cast<size_t>(coming));
        for (const Difference &difference : found) {
            EXPECT_EQ(difference.kind, DifferenceKind::QuestionAdded);
            EXPECT_GT(difference.question, count);
        }
    }
    EXPECT_GT(merged, rounds / 2);
}

TEST(RandomDifferences, GoTheOtherWayWithTheProjects)
{
    Random random;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        const Project one = RandomProject(random, Letters::Awkward);
        const Project other = RandomProject(random, Letters::Awkward);
        const auto count = [](const std::vector<Difference> &found, DifferenceKind kind) {
            return std::ranges::count(found, kind, &Difference::kind);
        };
        const std::vector<Difference> there = DifferencesOf(one, other);
        const std::vector<Difference> back = DifferencesOf(other, one);
        EXPECT_EQ(count(there, DifferenceKind::QuestionAdded),
                  count(back, DifferenceKind::QuestionRemoved));
        EXPECT_EQ(count(there, DifferenceKind::QuestionMoved),
                  count(back, DifferenceKind::QuestionMoved));
        EXPECT_EQ(count(there, DifferenceKind::FormChanged),
                  count(back, DifferenceKind::FormChanged));
        EXPECT_EQ(other.source.QuestionCount() - count(there, DifferenceKind::QuestionAdded),
                  one.source.QuestionCount() - count(there, DifferenceKind::QuestionRemoved));
    }
}

TEST(RandomCodebook, HasARowForEachQuestion)
{
    Random random;
    for (int round = 0; round < rounds; ++round) {
        const Project project = RandomProject(random, Letters::Anything);
        EXPECT_EQ(CodebookOf(project).size(), static_cast<size_t>(project.source.QuestionCount()));
    }
}
