#include "palmtools/pilrc/object_tail.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

/// The bytes of a tail, which must be as many as were reckoned.
Bytes BytesOf(const ObjectTail &tail, const FormObject &object)
{
    Bytes bytes = "front";
    tail.append(bytes, object);
    EXPECT_EQ(bytes.substr(0, 5), "front");
    EXPECT_EQ(bytes.size() - 5, tail.size(object));
    return bytes.substr(5);
}

TEST(ObjectTail, MayBeNone)
{
    EXPECT_EQ(BytesOf(noTail, {.kind = ObjectKind::gadget}), "");
}

TEST(ObjectTail, IsATextWithItsEnd)
{
    EXPECT_EQ(BytesOf(textTail, {.kind = ObjectKind::label, .texts = {"ab"}}), FromHex("616200"));
    EXPECT_EQ(BytesOf(textTail, {.kind = ObjectKind::label, .texts = {""}}), FromHex("00"));
}

TEST(ObjectTail, HasRoomForAPointerToEachItem)
{
    EXPECT_EQ(BytesOf(itemsTail, {.kind = ObjectKind::list}), "");
    EXPECT_EQ(BytesOf(itemsTail, {.kind = ObjectKind::list, .texts = {"ab", "", "c"}}),
              std::string(12, '\0') + FromHex("616200 00 6300"));
}

TEST(ObjectTail, HasColumnsThenRowsThenCells)
{
    const FormObject table = {
        .kind = ObjectKind::table, .rows = 1, .columns = 2, .columnWidths = {0x123, -1}};
    const std::string none(12, '\0');
    EXPECT_EQ(BytesOf(cellsTail, table),
              FromHex("0123 0000 0001") + none + FromHex("FFFF 0000 0001") + none +
                  FromHex("0000 000B 00000000 01 01 0000") + std::string(16, '\0'));
}

TEST(ObjectTail, TakesTheWidthsThatThereAre)
{
    FormObject table = {.kind = ObjectKind::table, .columns = 2, .columnWidths = {7}};
    EXPECT_EQ(BytesOf(cellsTail, table).substr(0, 2), FromHex("0007"));
    EXPECT_EQ(BytesOf(cellsTail, table).substr(18, 6), FromHex("0000 0000 0001"));
    table.columns = 0;
    EXPECT_EQ(BytesOf(cellsTail, table), "");
}

TEST(ObjectTail, IsCountedBeyond32Bits)
{
    const FormObject table = {.kind = ObjectKind::table, .rows = 65535, .columns = 65535};
    EXPECT_EQ(cellsTail.size(table), 30ull * 65535 + 8ull * 65535 * 65535);
}

} // namespace
} // namespace palmtools
