// This test makes databases by a table in which the types with a second control are those without.

#include "readback/generated.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(WrongNavigation, IsFoundForEveryType)
{
    QStringList expected;
    for (int question = 1; question <= 10; ++question)
        expected += u"navigation [navigation %1]"_s.arg(question);
    EXPECT_EQ(CodesOf(LinesOf(Generated(TenTypesProject()), TenTypesProject())), expected)
        << "and nothing else, since all the rest is made by the right sources";
}
