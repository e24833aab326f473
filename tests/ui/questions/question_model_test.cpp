#include "ui/questions/question_model.h"

#include "editing/question_list.h"
#include "support/print.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void Append(ProjectDocument &document, const QuestionRow &row)
{
    document.ChangeQuestions([&](clsDataSource &source) { source.Questions().Append(row); });
}

TEST(QuestionModel, ShowsFiveColumnsOfEveryQuestion)
{
    ProjectDocument document;
    QuestionModel model(document);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    Append(document, {1, u"Bird"_s, u"Which <b>bird?"_s, u"Text"_s, u"BIRD"_s, 7});
    Append(document, {2, u"Count"_s, u"How many?"_s, u"Numeric"_s, u"COUNT"_s, 8});

    ASSERT_EQ(model.rowCount(), 2);
    ASSERT_EQ(model.columnCount(), 5);
    const QString captions[] = {u"Order"_s, u"Title"_s, u"Question"_s, u"Type"_s, u"Column Name"_s};
    const QVariant first[] = {1, u"Bird"_s, u"Which <b>bird?"_s, u"Text"_s, u"BIRD"_s};
    for (int column = 0; column < 5; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), captions[column]);
        EXPECT_EQ(model.index(0, column).data(), first[column]);
        EXPECT_FALSE(model.flags(model.index(0, column)) & Qt::ItemIsEditable);
    }
    EXPECT_EQ(model.index(1, 1).data().toString(), u"Count"_s);
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
}

TEST(QuestionModel, ShowsTheBeginningOfATextBeyondAllLimits)
{
    ProjectDocument document;
    const QuestionModel model(document);
    Append(document, {.Title = QString(255, u't'), .ColumnName = QString(10'000, u'c')});
    EXPECT_EQ(model.index(0, 1).data().toString(), QString(255, u't'));
    EXPECT_EQ(model.index(0, 4).data().toString(), QString(256, u'c'));
}

TEST(QuestionModel, KeepsItsPromisesWhileQuestionsChange)
{
    ProjectDocument document;
    QuestionModel model(document);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int n = 1; n <= 5; ++n)
        Append(document, {.Order = n, .ColumnName = QString::number(n), .Id = n});
    document.source().Questions().SetPosition(2);
    document.ChangeQuestions(MoveQuestionUp);
    EXPECT_EQ(model.index(1, 4).data().toString(), u"3"_s);
    document.ChangeQuestions(RemoveQuestion);
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_TRUE(document.ChangeQuestions(DuplicateQuestion));
    EXPECT_EQ(model.rowCount(), 5);
    document.ChangeQuestions([](clsDataSource &source) { source.ClearQuestions(); });
    EXPECT_EQ(model.rowCount(), 0);
}

} // namespace
