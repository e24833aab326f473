#include "palmtools/common/shown.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Shown, TellsControlCharactersByTheirCodes)
{
    EXPECT_EQ(Shown("a b~"), "a b~");
    EXPECT_EQ(Shown("\n\x1F\x7F"), "\\x0A\\x1F\\x7F");
    EXPECT_EQ(Shown("\x80\xFF"), "\x80\xFF");
    EXPECT_EQ(Shown(""), "");
}

} // namespace
} // namespace palmtools
