#include "help/reader/file_bytes.h"

#include <QBuffer>
#include <gtest/gtest.h>

using namespace vellumo;

namespace {

TEST(FileBytes, AreAllThatWasAskedForOrNone)
{
    QBuffer file;
    file.setData("0123456789");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(BytesAt(file, 0, 10), QByteArray("0123456789"));
    EXPECT_EQ(BytesAt(file, 3, 2), QByteArray("34"));
    EXPECT_EQ(BytesAt(file, 9, 1), QByteArray("9"));
    EXPECT_EQ(BytesAt(file, 10, 0), QByteArray(""));

    EXPECT_FALSE(BytesAt(file, 0, 11));
    EXPECT_FALSE(BytesAt(file, 9, 2));
    EXPECT_FALSE(BytesAt(file, 11, 0));
    EXPECT_FALSE(BytesAt(file, ~0ull, 1));
    EXPECT_FALSE(BytesAt(file, 1, ~0ull)) << "makes no room for what is not there";
}

} // namespace
