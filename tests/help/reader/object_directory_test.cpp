#include "help/reader/object_directory.h"

#include <gtest/gtest.h>

using namespace vellumo;

namespace {

ObjectDirectory DirectoryOf(std::initializer_list<QByteArrayView> names)
{
    ObjectDirectory directory;
    quint64 offset = 0;
    for (const QByteArrayView name : names)
        EXPECT_TRUE(directory.Add(name, {0, offset++, 1})) << name.toByteArray().toStdString();
    return directory;
}

TEST(ObjectDirectory, FindsNamesWithoutRegardToCase)
{
    const auto directory = DirectoryOf({"/a.html", "/B/C.html", "/\xC3\x84"});
    EXPECT_EQ(directory.Count(), 3);
    EXPECT_EQ(directory.Find("/A.HTML")->offset, 0u);
    EXPECT_EQ(directory.Find("/b/c.html")->offset, 1u);
    EXPECT_EQ(directory.Find("/\xC3\x84")->offset, 2u);
    EXPECT_FALSE(directory.Find("/\xC3\xA4")) << "only letters of ASCII have a case";
    EXPECT_FALSE(directory.Find("/"));
    EXPECT_FALSE(directory.Find(""));
    EXPECT_FALSE(ObjectDirectory().Find("/a.html"));
}

TEST(ObjectDirectory, KeepsTheFirstOfTwoEqualNames)
{
    auto directory = DirectoryOf({"/a.html"});
    EXPECT_FALSE(directory.Add("/A.html", {1, 2, 3}));
    EXPECT_EQ(directory.Count(), 1);
    const auto place = directory.Find("/A.html");
    EXPECT_EQ(place->section, 0u);
    EXPECT_EQ(place->offset, 0u);
    EXPECT_EQ(place->length, 1u);
}

TEST(ObjectDirectory, KnowsWhereASectionEnds)
{
    ObjectDirectory directory;
    EXPECT_EQ(directory.EndOf(0), 0u);
    constexpr quint64 largest = (1ull << 63) - 1;
    directory.Add("/a", {0, 5, 10});
    directory.Add("/b", {0, 12, 1});
    directory.Add("/c", {1, largest, largest});
    EXPECT_EQ(directory.EndOf(0), 15u);
    EXPECT_EQ(directory.EndOf(1), 2 * largest);
    EXPECT_EQ(directory.EndOf(2), 0u);
}

TEST(ObjectDirectory, FindsTheLongestEndingOfAPath)
{
    const auto directory = DirectoryOf({"/c.html", "/Sub/c.html", "/Sub/", "/", "/#SYSTEM"});
    const struct {
        QByteArrayView path, ending;
    } rows[] = {
        {"/c.html", "/c.html"},
        {"/sub/C.html", "/sub/C.html"},
        {"/home/someone/Sub/c.html", "/Sub/c.html"},
        {"/home/someone/sub/d/c.html", "/c.html"},
        {"//c.html", "/c.html"},
        {"//Sub//c.html", "/c.html"},
        {"/home/c.html/x", ""},
        {"/home/xc.html", ""},
        {"/home/Sub/", ""},
        {"/", ""},
        {"", ""},
        {"c.html", ""},
        {"home/c.html", "/c.html"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(directory.LongestEnding(row.path), row.ending)
            << row.path.toByteArray().toStdString();
}

} // namespace
