#include "platform/result.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Result, IsAValueOrAnError)
{
    Result<QString> good(u"text"_s);
    ASSERT_TRUE(good);
    EXPECT_EQ(good->size(), 4);
    *good += u'!';
    EXPECT_EQ(*good, u"text!"_s);

    const Result<QString> bad(Error{u"why"_s});
    ASSERT_FALSE(bad);
    EXPECT_EQ(bad.error().text, u"why"_s);
    EXPECT_FALSE(bad.error().permissionDenied);
    EXPECT_TRUE(done);
}

TEST(Result, DescribesAnErrorByThePartsThatApply)
{
    EXPECT_EQ(Describe(Error{u"why"_s}), u"why"_s);
    EXPECT_EQ(Describe(Error{u"why"_s, u"a.vmp"_s}), u"a.vmp: why"_s);
    EXPECT_EQ(Describe(Error{u"why"_s, u"a.vmp"_s, 7}), u"a.vmp:7: why"_s);
}
