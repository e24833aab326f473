#include "exchange/codebook.h"

#include "model/question_types.h"
#include "sample_projects.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Codebook, TellsOfEachTypeWhatItsColumnHolds)
{
    const struct {
        QLatin1StringView type, value;
    } rows[] = {
        {"Text"_L1, "text"_L1},
        {"Numeric"_L1, "number"_L1},
        {"Pulldown List"_L1, "one of the items"_L1},
        {"Yes/No"_L1, "yes or no"_L1},
        {"Signature"_L1, "image"_L1},
        {"Notes"_L1, "image"_L1},
        {"Date/Time"_L1, "date and time"_L1},
        {"Currency"_L1, "amount of money"_L1},
        {"Scanned Barcode"_L1, "text"_L1},
        {"Checkboxes"_L1, "several of the items"_L1},
        {"text"_L1, "unknown"_L1},
        {""_L1, "unknown"_L1},
    };
    EXPECT_EQ(std::size(rows), typeCount + 2);
    for (const auto &row : rows)
        EXPECT_EQ(ValueOf(QString(row.type)), row.value) << row.type.data();
}

TEST(Codebook, HasARowForEachQuestionInTheirOrder)
{
    const Project project = ProjectOf({{.title = u"Name"_s,
                                        .question = u"Who are you?"_s,
                                        .type = u"Text"_s,
                                        .columnName = u"NAME"_s},
                                       {.title = u"Birds"_s,
                                        .question = u"Which birds?"_s,
                                        .type = u"Checkboxes"_s,
                                        .columnName = u"BIRDS"_s,
                                        .items = {u"Wren"_s, u"Robin"_s}}});
    const std::vector<CodebookRow> rows = CodebookOf(project);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].number, 1);
    EXPECT_EQ(rows[0].columnName, u"NAME"_s);
    EXPECT_EQ(rows[0].type, u"Text"_s);
    EXPECT_EQ(rows[0].value, "text"_L1);
    EXPECT_EQ(rows[0].title, u"Name"_s);
    EXPECT_EQ(rows[0].question, u"Who are you?"_s);
    EXPECT_EQ(rows[0].items, QStringList());
    EXPECT_EQ(rows[1].number, 2);
    EXPECT_EQ(rows[1].items, (QStringList{u"Wren"_s, u"Robin"_s}));
}

TEST(Codebook, LeavesItemsOutThatNoTypeShows)
{
    Project project = ProjectWith({u"NAME"_s});
    project.source.AppendItems(project.source.Questions().Rows()[0].Id, {u"left over"_s});
    EXPECT_EQ(CodebookOf(project)[0].items, QStringList());
}

TEST(Codebook, OfAnEmptyProjectIsEmpty)
{
    EXPECT_TRUE(CodebookOf({}).empty());
}
