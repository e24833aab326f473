#include "exchange/project_difference.h"

#include "editing/question_list.h"
#include "sample_projects.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr QLatin1StringView kinds[] = {
    "form-changed"_L1,     "question-removed"_L1, "question-added"_L1, "question-moved"_L1,
    "question-changed"_L1, "item-removed"_L1,     "item-added"_L1,     "item-moved"_L1};

/// The differences, each as "kind question columnName field [before] [after]".
QStringList Told(const Project &before, const Project &after)
{
    QStringList told;
    for (const Difference &difference : DifferencesOf(before, after))
        told += u"%1 %2 %3 %4 [%5] [%6]"_s.arg(
            kinds[static_cast<int>(difference.kind)], QString::number(difference.question),
            difference.columnName, difference.field, difference.before, difference.after);
    return told;
}

QuestionRow &RowOf(Project &project, int question)
{
    project.source.SetPosition(question - 1);
    return project.source.Questions().Current();
}

} // namespace

TEST(DifferencesOf, TellsTheFormInformation)
{
    const Project before = {.FormName = u"A"_s,
                            .FormVersion = u"1.0"_s,
                            .Description = u"Words"_s,
                            .FormPath = u"C:\\A"_s};
    const Project after = {.FormName = u"B"_s, .FormVersion = u"1.1"_s, .FormPath = u"C:\\B"_s};
    EXPECT_EQ(Told(before, after), (QStringList{u"form-changed 0  form name [A] [B]"_s,
                                                u"form-changed 0  form version [1.0] [1.1]"_s,
                                                u"form-changed 0  description [Words] []"_s,
                                                u"form-changed 0  data folder [C:\\A] [C:\\B]"_s}));
}

TEST(DifferencesOf, TellsQuestionsThatCameAndWent)
{
    const Project before = ProjectWith({u"A"_s, u"B"_s, u"C"_s});
    Project after = before;
    after.source.SetPosition(1);
    RemoveQuestion(after.source);
    AppendQuestion(after.source, {.title = u"Birds"_s,
                                  .question = u"Which?"_s,
                                  .type = u"Checkboxes"_s,
                                  .columnName = u"D"_s,
                                  .items = {u"Wren"_s, u"Robin"_s}});
    EXPECT_EQ(
        Told(before, after),
        (QStringList{u"question-removed 2 B  [Text, Title B: Question B] []"_s,
                     u"question-added 3 D  [] [Checkboxes, Birds: Which? (Wren | Robin)]"_s}));
}

TEST(DifferencesOf, TellsOneMoveOfOneMovedQuestion)
{
    const Project before = ProjectWith({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s});
    Project after = before;
    after.source.SetPosition(4);
    MoveQuestion(after.source, -3);
    EXPECT_EQ(Told(before, after), QStringList(u"question-moved 2 E  [5] [2]"_s));
}

TEST(DifferencesOf, TellsEachFieldOfAQuestion)
{
    const Project before = ProjectWith({u"A"_s, u"B"_s});
    Project after = before;
    QuestionRow &row = RowOf(after, 2);
    row.Type = u"Notes"_s;
    row.ColumnName = u"BB"_s;
    row.Title = u"New"_s;
    EXPECT_EQ(Told(before, after), (QStringList{u"question-changed 2 BB type [Text] [Notes]"_s,
                                                u"question-changed 2 BB column name [B] [BB]"_s,
                                                u"question-changed 2 BB title [Title B] [New]"_s}));
    after = before;
    RowOf(after, 2).Question = u"Why?"_s;
    EXPECT_EQ(Told(before, after),
              QStringList(u"question-changed 2 B question [Question B] [Why?]"_s));
}

TEST(DifferencesOf, TellsItemByItem)
{
    const Project before = ProjectWithItems({u"Wren"_s, u"Robin"_s, u"Owl"_s, u"Swift"_s});
    const Project after = ProjectWithItems({u"Swift"_s, u"Wren"_s, u"Owl"_s, u"Rook"_s});
    const std::vector<Difference> found = DifferencesOf(before, after);
    ASSERT_EQ(found.size(), 3u);
    EXPECT_EQ(Told(before, after), (QStringList{u"item-removed 1 BIRDS item [Robin] []"_s,
                                                u"item-moved 1 BIRDS item [Swift] [Swift]"_s,
                                                u"item-added 1 BIRDS item [] [Rook]"_s}));
    EXPECT_EQ(found[0].itemBefore, 2);
    EXPECT_EQ(found[0].itemAfter, 0);
    EXPECT_EQ(found[1].itemBefore, 4);
    EXPECT_EQ(found[1].itemAfter, 1);
    EXPECT_EQ(found[2].itemBefore, 0);
    EXPECT_EQ(found[2].itemAfter, 4);
}

TEST(DifferencesOf, TellsOfAnItemThatIsThereTwice)
{
    EXPECT_EQ(Told(ProjectWithItems({u"Owl"_s}), ProjectWithItems({u"Owl"_s, u"Owl"_s})),
              QStringList(u"item-added 1 BIRDS item [] [Owl]"_s));
}

TEST(DifferencesOf, KnowsAQuestionByItsColumnNameWhereTheIdIsAnother)
{
    const Project before = ProjectWith({u"A"_s, u"B"_s, u"C"_s});
    Project after = ProjectWith({u"A"_s, u"C"_s}); // C has the Id that B had
    EXPECT_EQ(Told(before, after),
              QStringList(u"question-removed 2 B  [Text, Title B: Question B] []"_s));
    RowOf(after, 2).Id = 77;
    RowOf(after, 2).Title = u"New"_s;
    EXPECT_EQ(Told(before, after),
              (QStringList{u"question-removed 2 B  [Text, Title B: Question B] []"_s,
                           u"question-changed 2 C title [Title C] [New]"_s}));
}

TEST(DifferencesOf, KnowsQuestionsOfOneIdByTheirColumnNames)
{
    Project before = ProjectWith({u"A"_s, u"B"_s});
    RowOf(before, 2).Id = 1;
    Project after = before;
    after.source.SetPosition(0);
    MoveQuestion(after.source, 1);
    EXPECT_EQ(Told(before, after).size(), 1);
    EXPECT_TRUE(Told(before, after)[0].startsWith("question-moved"_L1));
}

TEST(DifferencesOf, LeavesOutWhatTheDesignerKeepsForItself)
{
    const Project before = ProjectWith({u"A"_s});
    Project after = before;
    after.TitleList = {u"Age"_s};
    after.source.SetMaxId(99);
    after.source.AppendItems(55, {u"of nobody"_s});
    RowOf(after, 1).Order = 7;
    EXPECT_EQ(Told(before, after), QStringList());
}
