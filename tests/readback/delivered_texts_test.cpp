#include "readback/delivered_texts.h"

#include "readback/projects.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

DeliveredTexts Delivered(const Project &project)
{
    QList<Finding> findings;
    DeliveredTexts texts = DeliverTexts(project, deliveredTypes, findings);
    EXPECT_TRUE(findings.isEmpty());
    return texts;
}

QList<QByteArray> DeliveredItems(const QStringList &items)
{
    return Delivered(OneQuestionProject(u"x"_s, {.Type = u"Checkboxes"_s}, items))
        .questions.first()
        .items;
}

} // namespace

TEST(DeliveredTexts, InterpretsEachTextAsItIsWritten)
{
    Project project = OneQuestionProject(u" a\\tb "_s, {.Title = uR"(\x41)"_s,
                                                        .Question = uR"(say \\"hi" \t)"_s,
                                                        .Type = u"Text"_s,
                                                        .ColumnName = uR"(C\_D)"_s});
    project.FormVersion = uR"(v\061)"_s;
    project.Description = uR"("a\"b\n)"_s;
    const DeliveredTexts texts = Delivered(project);
    EXPECT_EQ(texts.databaseName, R"(a\tb)") << "which is no text of the script";
    EXPECT_EQ(texts.formName, " a\tb ");
    EXPECT_EQ(texts.version, "v1");
    EXPECT_EQ(texts.description, "\"a\"b\n");
    ASSERT_EQ(texts.questions.size(), 1);
    EXPECT_EQ(texts.questions[0].type->name, "Text"_L1);
    EXPECT_EQ(texts.questions[0].title, "A");
    EXPECT_EQ(texts.questions[0].text, "say \"hi\" \t");
    EXPECT_EQ(texts.questions[0].columnName, "CD");
    EXPECT_TRUE(texts.questions[0].items.isEmpty());
}

TEST(DeliveredTexts, TheFolderEndsInABackslash)
{
    const struct {
        QString typed;
        QByteArray folder;
    } rows[] = {
        {uR"(C:\Data)"_s, R"(C:\Data\)"},
        {uR"(C:\Data\)"_s, R"(C:\Data\)"},
        {uR"(C:\new\101\\)"_s, R"(C:\new\101\\)"},
        {u""_s, R"(\)"},
    };
    for (const auto &row : rows) {
        Project project = GoldenProject(u"x"_s);
        project.FormPath = row.typed;
        EXPECT_EQ(Delivered(project).folder, row.folder);
    }
}

TEST(DeliveredTexts, ItemsAreSplitAtEveryComma)
{
    EXPECT_EQ(DeliveredItems({}), QList<QByteArray>());
    EXPECT_EQ(DeliveredItems({u""_s}), QList<QByteArray>());
    EXPECT_EQ(DeliveredItems({u""_s, u""_s}), (QList<QByteArray>{"", ""}));
    EXPECT_EQ(DeliveredItems({u"a"_s, u"b,c"_s, u",d"_s}),
              (QList<QByteArray>{"a", "b", "c", "", "d"}));
    EXPECT_EQ(DeliveredItems({uR"(a\x42)"_s, u" b "_s}), (QList<QByteArray>{"aB", " b "}));
}

TEST(DeliveredTexts, ItemsGoWithTheIdOfTheirQuestion)
{
    Project project = GoldenProject(u"x"_s);
    project.source.Questions().Append({.Type = u"Checkboxes"_s, .Id = 7});
    project.source.Questions().Append({.Type = u"Pulldown List"_s, .Id = 3});
    project.source.Questions().Append({.Type = u"Text"_s, .Id = 9});
    for (const ItemRow &item : {ItemRow{3, u"c"_s}, {7, u"a"_s}, {9, u"\u03A9"_s}, {7, u"b"_s}})
        project.source.Items().Append(item);
    const DeliveredTexts texts = Delivered(project);
    EXPECT_EQ(texts.questions[0].items, (QList<QByteArray>{"a", "b"}));
    EXPECT_EQ(texts.questions[1].items, QList<QByteArray>{"c"});
    EXPECT_EQ(texts.questions[2].items, QList<QByteArray>()) << "a text has none";
}

TEST(DeliveredTexts, FindsWhatTheCodePageLacks)
{
    Project project = OneQuestionProject(
        u"x"_s, {.Title = u"5 \u20AC caf\u00E9"_s, .Question = u"a\u03A9b"_s, .Type = u"Text"_s});
    QList<Finding> findings;
    const DeliveredTexts texts = DeliverTexts(project, deliveredTypes, findings);
    EXPECT_EQ(texts.questions[0].title, "5 \x80 caf\xE9");
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].code, "not-encodable"_L1);
    EXPECT_EQ(findings[0].place.question, 1);
    EXPECT_EQ(findings[0].place.field, "question text"_L1);
    EXPECT_TRUE(findings[0].text.startsWith(u"The question text of question 1 has the character"));
}
