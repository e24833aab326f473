#include "palmtools/pilrc/object_layout.h"

#include <gtest/gtest.h>

#include <set>

namespace palmtools {
namespace {

using Kind = ObjectKind;

constexpr Kind kinds[] = {
    Kind::title,        Kind::label,  Kind::field,     Kind::button,
    Kind::checkBox,     Kind::list,   Kind::popupList, Kind::selectorTrigger,
    Kind::popupTrigger, Kind::gadget, Kind::table,     Kind::graffitiIndicator,
    Kind::scrollBar,
};

TEST(ObjectLayout, IsThereForEveryKind)
{
    std::set<int> codes;
    for (const Kind kind : kinds) {
        EXPECT_EQ(LayoutOf(kind).kind, kind);
        codes.insert(LayoutOf(kind).directoryKind);
    }
    EXPECT_EQ(codes, (std::set<int>{0, 1, 2, 3, 8, 9, 10, 11, 12, 13}));
}

/// An object all of whose values are odd, so that a part that is put shows in the bytes.
FormObject Odd(Kind kind)
{
    return {.kind = kind,
            .number = 0x0101,
            .place = {0x0101, 0x0101, 0x0101, 0x0101},
            .texts = {"a"},
            .font = 1,
            .group = 1,
            .maxChars = 0x0101,
            .rows = 0x0101,
            .columns = 0x0101,
            .value = 0x0101,
            .min = 0x0101,
            .max = 0x0101,
            .pageSize = 0x0101,
            .listNumber = 0x0101};
}

TEST(ObjectLayout, KeepsItsPartsInOrderAndWithinTheFixedSize)
{
    for (const Kind kind : kinds) {
        SCOPED_TRACE(static_cast<int>(kind));
        const ObjectLayout &layout = LayoutOf(kind);
        EXPECT_EQ(layout.fixedSize % 2, 0);
        std::size_t end = 0;
        for (const ObjectPart &part : layout.parts) {
            EXPECT_GE(part.offset, end);
            Bytes bytes;
            Record record(bytes, 256);
            part.put(record, part.offset, Odd(kind));
            EXPECT_EQ(bytes.substr(0, part.offset), Bytes(part.offset, '\0'));
            end = bytes.find_last_not_of('\0') + 1;
            EXPECT_LE(end, layout.fixedSize);
        }
    }
}

} // namespace
} // namespace palmtools
