#include "palmtools/pilrc/form_bytes.h"

#include "palmtools/pilrc/resource_list.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

std::string Header(const char *frame, const char *number, const char *flags, const char *objects)
{
    return std::string(8, '\0') + FromHex("1200 0001 0002 00A0 FFFF") + std::string(12, '\0') +
           FromHex(frame) + std::string(8, '\0') + FromHex(number) + FromHex(flags) +
           std::string(18, '\0') + FromHex(objects) + std::string(4, '\0');
}

TEST(FormBytes, BeginWithAHeader)
{
    const struct {
        const char *what;
        bool usable, frame, saveBehind;
        const char *frameBytes, *flags;
    } rows[] = {
        {"as it is without attributes", true, true, true, "0001", "8800"},
        {"as the designer writes it", true, false, false, "0000", "8000"},
        {"not usable", false, true, false, "0001", "0000"},
        {"not usable, saves", false, true, true, "0001", "0800"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const FormHeader header = {.number = 0x1234,
                                   .place = {1, 2, 160, -1},
                                   .usable = row.usable,
                                   .frame = row.frame,
                                   .saveBehind = row.saveBehind};
        const FormBytes form;
        EXPECT_EQ(form.Build(header), Header(row.frameBytes, "1234", row.flags, "0000"));
        EXPECT_EQ(form.Size(), 68u);
    }
}

TEST(FormBytes, ListTheObjectsInTheirOrder)
{
    FormBytes form;
    form.Add({.kind = ObjectKind::title, .texts = {"ab"}});
    form.Add({.kind = ObjectKind::popupList, .number = 2, .listNumber = 3});
    form.Add({.kind = ObjectKind::graffitiIndicator, .place = {4, 5, 9, 10}});
    const Bytes bytes = form.Build({.number = 1, .place = {1, 2, 160, -1}});
    // 68 bytes of header and 3 entries end at 0x56, the title at 0x66, the popup list at 0x6A.
    EXPECT_EQ(bytes, Header("0001", "0001", "8800", "0003") +
                         FromHex("09 00 00000056  0A 00 00000066  0B 00 0000006A") +
                         std::string(12, '\0') + FromHex("616200 00 0002 0003 0004 0005"));
    EXPECT_EQ(form.Size(), bytes.size());
}

TEST(FormBytes, AreCountedBeyondTheLargestResource)
{
    const std::string text(largestResource - 68 - 6 - 12 - 1 - 1, 'a');
    FormBytes form;
    form.Add({.kind = ObjectKind::title, .texts = {text}});
    EXPECT_EQ(form.Size(), largestResource - 1);
    EXPECT_EQ(form.Build({}).size(), form.Size());

    form.Add({.kind = ObjectKind::table, .rows = 65535, .columns = 65535});
    form.Add({.kind = ObjectKind::popupList});
    EXPECT_EQ(form.Size(),
              largestResource - 1 + 6 + 74 + 30ull * 65535 + 8ull * 65535 * 65535 + 10);
}

} // namespace
} // namespace palmtools
