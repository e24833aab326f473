#include "editing/question_preview.h"

#include "model/question_types.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

clsDataSource SourceOf(const QuestionRow &question)
{
    clsDataSource source;
    source.GetDataMember();
    source.Questions().Append(question);
    return source;
}

TEST(QuestionPreview, IsNothingWithoutACurrentQuestion)
{
    clsDataSource source;
    source.GetDataMember();
    EXPECT_FALSE(PreviewOf(source));
    source.AddQuestion();
    source.Questions().MoveNext();
    EXPECT_FALSE(PreviewOf(source));
}

TEST(QuestionPreview, TellsTheNumberOfTheQuestionAndOfAll)
{
    clsDataSource source = SourceOf({.Order = 1, .Type = u"Text"_s});
    source.Questions().Append({.Order = 2, .Type = u"Text"_s});
    EXPECT_EQ(PreviewOf(source)->position, u"2 of 2"_s);
}

TEST(QuestionPreview, KnowsEachType)
{
    for (const QuestionType &type : questionTypes)
        EXPECT_EQ(PreviewOf(SourceOf({.Type = type.name}))->type, type.id);
}

TEST(QuestionPreview, LeavesAQuestionOfAnotherTypeBlank)
{
    const auto preview = PreviewOf(
        SourceOf({.Order = 1, .Title = u"Bird"_s, .Question = u"Which?"_s, .Type = u"text"_s}));
    EXPECT_FALSE(preview->type);
    EXPECT_EQ(preview->position, u"1 of 1"_s);
    EXPECT_EQ(preview->title, QString());
    EXPECT_EQ(preview->question, QString());
    EXPECT_FALSE(preview->items);
}

TEST(QuestionPreview, CutsAQuestionOfMoreThan23CharactersAt20)
{
    const QString whole = u"Which bird do you see??"_s;
    ASSERT_EQ(whole.size(), 23);
    EXPECT_EQ(PreviewOf(SourceOf({.Question = whole, .Type = u"Text"_s}))->question, whole);
    EXPECT_EQ(PreviewOf(SourceOf({.Question = whole + u'?', .Type = u"Text"_s}))->question,
              u"Which bird do you se..."_s);
}

TEST(QuestionPreview, ShowsTheTitleAsItStands)
{
    EXPECT_EQ(PreviewOf(SourceOf({.Title = u" a <b> "_s, .Type = u"Text"_s}))->title, u" a <b> "_s);
}

TEST(QuestionPreview, ShowsTheFirstSixItemsOfCheckboxes)
{
    const struct {
        int items, shown;
        bool more;
    } rows[] = {{0, 0, false}, {6, 6, false}, {7, 6, true}, {9, 6, true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.items);
        clsDataSource source = SourceOf({.Type = u"Checkboxes"_s, .Id = 4});
        source.Items().Append({.Id = 5, .Item = u"of another"_s});
        for (int n = 1; n <= row.items; ++n)
            source.Items().Append({.Id = 4, .Item = QString::number(n)});
        const auto box = PreviewOf(source)->items;
        ASSERT_TRUE(box);
        EXPECT_EQ(box->shown.size(), row.shown);
        EXPECT_EQ(box->shown.value(0), row.shown > 0 ? u"1"_s : QString());
        EXPECT_EQ(box->more, row.more);
    }
}

TEST(QuestionPreview, ShowsNoItemsOfAnyOtherType)
{
    for (const QuestionType &type : questionTypes) {
        clsDataSource source = SourceOf({.Type = type.name, .Id = 4});
        source.Items().Append({.Id = 4, .Item = u"one"_s});
        EXPECT_EQ(PreviewOf(source)->items.has_value(), type.id == TypeId::Checkboxes);
    }
}

} // namespace
