// This test makes databases by a table of question types whose codes are all wrong.

#include "model/question_types.h"
#include "readback/generated.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(WrongCodes, AreThoseThatTheDatabasesAreMadeBy)
{
    EXPECT_EQ(QuestionKindCode(u"Text"), "0x20"_L1);
    EXPECT_EQ(FieldDataCode(u"Checkboxes"), "0x24"_L1);
}

TEST(WrongCodes, AreFoundForEveryType)
{
    QStringList expected;
    for (const QString &finding : {u"value-code [value kind %1]"_s, u"type-code [type %1]"_s})
        for (int question = 1; question <= 10; ++question)
            expected += finding.arg(question);
    EXPECT_EQ(CodesOf(LinesOf(Generated(TenTypesProject()), TenTypesProject())), expected)
        << "and nothing else, since all the rest is made by the right sources";
}

TEST(WrongCodes, AreFoundForOneQuestion)
{
    EXPECT_EQ(
        LinesOf(Generated(TextProject()), TextProject()),
        (QStringList{
            u"value-code [value kind 1] The value kind of question 1 is 0x20 instead of 0x00."_s,
            u"type-code [type 1] The type of question 1 is 0x20 instead of 0x00."_s}));
}
