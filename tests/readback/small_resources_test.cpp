#include "readback/navigation_reader.h"
#include "readback/text_resources.h"

#include "readback/databases.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

template <typename T> QString RefusalOf(const Result<T> &read)
{
    return read ? u"read"_s : read.error().text;
}

} // namespace

TEST(Navigation, ReadsTheItems)
{
    const PalmDatabase database = Read(Golden(u"yesno"_s));
    const Result<Navigation> read = ReadNavigation(DataOf(database, "fnav", 1));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->initialState, 1u);
    EXPECT_EQ(read->initialObject, 2u);
    const QList<NavigationItem> expected = {
        {2, 0, 3}, {3, 2, 99}, {99, 3, 101}, {101, 99, 100}, {100, 101, 2}};
    EXPECT_TRUE(read->items == expected);
}

TEST(Navigation, RefusesWhatDoesNotAddUp)
{
    const QByteArray text = DataOf(Read(Golden(u"text"_s)), "fnav", 1);
    ASSERT_EQ(text.size(), 52);
    const struct {
        const char *what;
        QByteArray resource;
        QString reason;
    } rows[] = {
        {"whole", text, u"read"_s},
        {"nothing", "", u"it ends too early, at byte 0"_s},
        {"another version", WithNumber(text, 0, 2, 2), u"the number at byte 0 is 2 instead of 1"_s},
        {"another size of an item", WithNumber(text, 6, 2, 10),
         u"the number at byte 6 is 10 instead of 8"_s},
        {"more items than there are", WithNumber(text, 2, 2, 5),
         u"it ends too early, at byte 52"_s},
        {"fewer", WithNumber(text, 2, 2, 3), u"it should end at byte 44, but has 52 bytes"_s},
        {"something in an item", WithNumber(text, 22, 2, 1), u"byte 23 is not zero"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(RefusalOf(ReadNavigation(row.resource)), row.reason);
    }
}

TEST(TextResource, ReadsOneTextAndNothingElse)
{
    const auto refusal = [](QByteArrayView bytes, Padding padding) {
        return RefusalOf(ReadTextResource(bytes.toByteArray(), padding));
    };
    EXPECT_EQ(*ReadTextResource(QByteArray("ab\0", 3)), "ab");
    EXPECT_EQ(*ReadTextResource(QByteArray("ab\0\0", 4), Padding::ToEven), "ab");
    EXPECT_EQ(*ReadTextResource(QByteArray("abc\0", 4), Padding::ToEven), "abc");
    EXPECT_EQ(*ReadTextResource(QByteArray("\0", 1)), "");

    EXPECT_EQ(refusal("", Padding::None), u"the text at byte 0 has no end"_s);
    EXPECT_EQ(refusal("ab", Padding::None), u"the text at byte 0 has no end"_s);
    EXPECT_EQ(refusal({"ab\0\0", 4}, Padding::None), u"it should end at byte 3, but has 4 bytes"_s);
    EXPECT_EQ(refusal({"ab\0", 3}, Padding::ToEven), u"it ends too early, at byte 3"_s);
    EXPECT_EQ(refusal({"ab\0c", 4}, Padding::ToEven), u"byte 3 is not zero"_s);
}

TEST(StringTable, ReadsPrefixAndEntries)
{
    const QByteArray bytes("p\0\0\2ab\0\0", 8);
    const Result<StringTable> table = ReadStringTable(bytes);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->prefix, "p");
    EXPECT_EQ(table->entries, (QList<QByteArray>{"ab", ""}));

    EXPECT_EQ(RefusalOf(ReadStringTable(bytes + 'x')),
              u"it should end at byte 8, but has 9 bytes"_s);
    EXPECT_EQ(RefusalOf(ReadStringTable(bytes.chopped(1))), u"the text at byte 7 has no end"_s);
    EXPECT_EQ(RefusalOf(ReadStringTable(WithNumber(bytes, 2, 2, 0xFFFF))),
              u"the text at byte 8 has no end"_s);
}
