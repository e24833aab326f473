#include "model/question_types.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(QuestionTypes, AreOfferedInTheirOrder)
{
    const std::array<QLatin1StringView, 10> offered = {
        "Text"_L1,  "Numeric"_L1,   "Pulldown List"_L1, "Yes/No"_L1,          "Signature"_L1,
        "Notes"_L1, "Date/Time"_L1, "Currency"_L1,      "Scanned Barcode"_L1, "Checkboxes"_L1,
    };
    for (size_t i = 0; i < typeCount; ++i) {
        EXPECT_EQ(questionTypes[i].name, offered[i]);
        EXPECT_EQ(TypeNamed(QString(offered[i])), &questionTypes[i]);
    }
}

TEST(QuestionTypes, HaveTheirCodes)
{
    const struct {
        QString type;
        QLatin1StringView kind, data;
    } rows[] = {
        {u"Text"_s, "0x00"_L1, "0x00"_L1},
        {u"Numeric"_s, "0x01"_L1, "0x01"_L1},
        {u"Yes/No"_s, "0x02"_L1, "0x00"_L1},
        {u"Date/Time"_s, "0x03"_L1, "0x03"_L1},
        {u"Pulldown List"_s, "0x04"_L1, "0x00"_L1},
        {u"Signature"_s, "0x05"_L1, "0x02"_L1},
        {u"Notes"_s, "0x06"_L1, "0x02"_L1},
        {u"Scanned Barcode"_s, "0x07"_L1, "0x00"_L1},
        {u"Currency"_s, "0x08"_L1, "0x05"_L1},
        {u"Checkboxes"_s, "0x09"_L1, "0x04"_L1},
        // Names are compared exactly; whatever is none of them has the code of the unknown.
        {u"text"_s, "0x10"_L1, "0x10"_L1},
        {u"Text "_s, "0x10"_L1, "0x10"_L1},
        {u"Checkbox"_s, "0x10"_L1, "0x10"_L1},
        {u""_s, "0x10"_L1, "0x10"_L1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.type.toStdString());
        EXPECT_EQ(QuestionKindCode(row.type), row.kind);
        EXPECT_EQ(FieldDataCode(row.type), row.data);
    }
}

TEST(QuestionTypes, OnlyTheTwoListTypesHaveItems)
{
    for (const QuestionType &type : questionTypes)
        EXPECT_EQ(HasItems(QString(type.name)),
                  type.id == TypeId::PulldownList || type.id == TypeId::Checkboxes)
            << type.name.latin1();
    EXPECT_FALSE(HasItems(u"checkboxes"));
}

TEST(QuestionTypes, ListTypesHaveRulesOfTheirOwn)
{
    const ItemRules &pulldown = *TypeNamed(u"Pulldown List")->items;
    EXPECT_EQ(pulldown.count.most, 255);
    EXPECT_TRUE(pulldown.offersNames);
    const ItemRules &boxes = *TypeNamed(u"Checkboxes")->items;
    EXPECT_EQ(boxes.count.most, 32);
    EXPECT_FALSE(boxes.offersNames);
    EXPECT_NE(pulldown.introduction, boxes.introduction);
}

TEST(Limits, ObjectToOneMoreThanTheMost)
{
    const Limit limit = {3, "too many"_L1};
    EXPECT_EQ(limit.Objection(3), ""_L1);
    EXPECT_EQ(limit.Objection(4), "too many"_L1);
}
