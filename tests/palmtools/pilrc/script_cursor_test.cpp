#include "palmtools/pilrc/script_cursor.h"

#include "palmtools/pilrc/diagnostics.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(ScriptCursor, TakesBytesFromTheFront)
{
    ScriptCursor cursor("abc\nd");
    EXPECT_EQ(cursor.Front(), 'a');
    EXPECT_EQ(cursor.Take(2), "ab");
    EXPECT_EQ(cursor.rest(), "c\nd");
    EXPECT_EQ(cursor.Take(1), "c");
    cursor.TakeLineEnd();
    EXPECT_FALSE(cursor.AtEnd());
    EXPECT_EQ(cursor.Take(1), "d");
    EXPECT_TRUE(cursor.AtEnd());
    EXPECT_EQ(cursor.rest(), "");
}

TEST(ScriptCursor, CountsLinesOfEveryKind)
{
    ScriptCursor cursor("\r\n\n\r\r\n");
    for (const int line : {1, 2, 3, 4}) {
        EXPECT_EQ(cursor.line(), line);
        ASSERT_TRUE(IsLineEnd(cursor.Front()));
        cursor.TakeLineEnd();
    }
    EXPECT_TRUE(cursor.AtEnd());
    EXPECT_EQ(cursor.line(), 5);
    EXPECT_EQ(cursor.LastLine(), 4);
}

TEST(ScriptCursor, EndsOnTheLineThatIsThere)
{
    ScriptCursor open("\na");
    open.TakeLineEnd();
    open.Take(1);
    EXPECT_EQ(open.LastLine(), 2);
    EXPECT_EQ(ScriptCursor("").LastLine(), 1);
}

TEST(ScriptCursor, FailsAtItsLine)
{
    ScriptCursor cursor("\n");
    cursor.TakeLineEnd();
    try {
        cursor.Fail("some text");
    } catch (const ScriptError &error) {
        EXPECT_EQ(error.line(), 2);
        EXPECT_STREQ(error.what(), "some text");
    }
    EXPECT_THROW(cursor.FailAtZeroByte(), ScriptError);
}

} // namespace
} // namespace palmtools
