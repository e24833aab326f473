#include "palmtools/pilrc/object_bytes.h"

#include "palmtools/pilrc/encoded.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

using Kind = ObjectKind;

const struct {
    const char *what;
    FormObject object;
    int directoryKind;
    std::string bytes;
} plainObjects[] = {
    {"title, even",
     {.kind = Kind::title, .texts = {"abc"}},
     9,
     FromHex("000000000000000000000000 61626300")},
    {"title, padded",
     {.kind = Kind::title, .texts = {"Finder"}},
     9,
     FromHex("000000000000000000000000 46696E646572 0000")},
    {"label",
     {.kind = Kind::label, .number = 1, .place = place, .texts = {"a"}, .font = 1},
     8,
     FromHex("0001 0001 0002 8000 01 0000000000 6100")},
    {"label, not usable",
     {.kind = Kind::label, .number = 0xFFFF, .place = place, .texts = {""}, .usable = false},
     8,
     FromHex("FFFF 0001 0002 0000 00 0000000000 0000")},
    {"popup list",
     {.kind = Kind::popupList, .number = 2, .listNumber = 3},
     10,
     FromHex("0002 0003")},
    {"indicator",
     {.kind = Kind::graffitiIndicator, .place = {142, 126, 9, 10}},
     11,
     FromHex("008E 007E")},
    {"gadget",
     {.kind = Kind::gadget, .number = 2, .place = place},
     12,
     FromHex("0002 C000 0001 0002 0103 FFFC 0000000000000000")},
    {"gadget, not usable",
     {.kind = Kind::gadget, .number = 2, .place = place, .usable = false},
     12,
     FromHex("0002 4000 0001 0002 0103 FFFC 0000000000000000")},
    {"scroll bar",
     {.kind = Kind::scrollBar,
      .number = 3,
      .place = place,
      .value = 50,
      .min = -1,
      .max = 100,
      .pageSize = 10},
     13,
     FromHex("0001 0002 0103 FFFC 0003 80 00 0032 FFFF 0064 000A 00000000")},
    {"scroll bar, not usable",
     {.kind = Kind::scrollBar, .number = 3, .place = place, .usable = false},
     13,
     FromHex("0001 0002 0103 FFFC 0003 00 00 0000 0000 0000 0000 00000000")},
};

TEST(ObjectBytes, LieAsTheHandheldReadsThem)
{
    for (const auto &row : plainObjects) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(EncodedAs(row.object), row.bytes);
        EXPECT_EQ(DirectoryKind(row.object.kind), row.directoryKind);
    }
}

TEST(ObjectBytes, OfLists)
{
    const std::string front = FromHex("0003 0001 0002 0103 FFFC");
    const FormObject empty = {.kind = Kind::list, .number = 3, .place = place};
    EXPECT_EQ(EncodedAs(empty),
              front + FromHex("C000 00000000 0000 00000000 00") + std::string(9, '\0'));

    FormObject two = empty;
    two.texts = {"ab", ""};
    two.usable = false;
    two.font = 1;
    EXPECT_EQ(EncodedAs(two), front + FromHex("4000 00000000 0002 00000000 01") +
                                  std::string(9 + 8, '\0') + FromHex("616200 00"));

    FormObject odd = empty;
    odd.texts = {"ab"};
    EXPECT_EQ(EncodedAs(odd).substr(32), FromHex("00000000 616200 00"));
    EXPECT_EQ(DirectoryKind(Kind::list), 2);
}

TEST(ObjectBytes, OfTables)
{
    const std::string front = FromHex("0002 0001 0002 0103 FFFC");
    const FormObject bare = {.kind = Kind::table, .number = 2, .place = place, .editable = false};
    EXPECT_EQ(EncodedAs(bare), front + FromHex("0000 0000 0000") + std::string(58, '\0'));

    FormObject filled = bare;
    filled.editable = true;
    filled.columns = 3;
    filled.rows = 2;
    filled.columnWidths = {12, 300};
    const std::string none(12, '\0');
    const std::string row = FromHex("0000 000B 00000000 01 01 0000");
    EXPECT_EQ(EncodedAs(filled), front + FromHex("4000 0003 0002") + std::string(58, '\0') +
                                     FromHex("000C 0000 0001") + none + FromHex("012C 0000 0001") +
                                     none + FromHex("0000 0000 0001") + none + row + row +
                                     std::string(48, '\0'));

    FormObject fewer = filled;
    fewer.columns = 1;
    EXPECT_EQ(EncodedAs(fewer).substr(74, 6), FromHex("000C 0000 0001"));
    EXPECT_EQ(EncodedAs(fewer).size(), 74u + 18 + 2 * 12 + 2 * 8);
    EXPECT_EQ(DirectoryKind(Kind::table), 3);
}

TEST(ObjectBytes, HaveTheSizeThatWasReckoned)
{
    constexpr Kind kinds[] = {
        Kind::title,        Kind::label,  Kind::field,     Kind::button,
        Kind::checkBox,     Kind::list,   Kind::popupList, Kind::selectorTrigger,
        Kind::popupTrigger, Kind::gadget, Kind::table,     Kind::graffitiIndicator,
        Kind::scrollBar,
    };
    for (const Kind kind : kinds) {
        for (const std::string_view text : {"", "a", "ab", "abc"}) {
            SCOPED_TRACE(static_cast<int>(kind));
            FormObject object = {.kind = kind, .rows = 3, .columns = 2};
            if (DirectoryKind(kind) == 1 || kind == Kind::title || kind == Kind::label)
                object.texts = {text};
            if (kind == Kind::list)
                object.texts = {text, "x", text};
            EXPECT_EQ(ObjectSize(object), EncodedAs(object).size());
            EXPECT_EQ(ObjectSize(object) % 2, 0u);
        }
    }
}

TEST(ObjectBytes, OfAHugeTableAreCountedWithoutBuildingIt)
{
    const FormObject table = {.kind = Kind::table, .rows = 65535, .columns = 65535};
    EXPECT_EQ(ObjectSize(table), 74u + 30ull * 65535 + 8ull * 65535 * 65535);
    const FormObject rows = {.kind = Kind::table, .rows = 65535, .columns = 0};
    EXPECT_EQ(ObjectSize(rows), 74u + 12ull * 65535);
}

} // namespace
} // namespace palmtools
