#include "help/reader/contents.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QString Line(const QString &title, const QString &page = {})
{
    return uR"(<LI><OBJECT type="text/sitemap"><param name="Name" value="%1">)"_s.arg(title) +
           (page.isEmpty() ? QString() : uR"(<param name="Local" value="%1">)"_s.arg(page)) +
           u"</OBJECT>\n"_s;
}

TEST(Contents, KeepsOrderAndLevels)
{
    const auto entries = ReadContents(
        u"<OBJECT type=\"text/site properties\"><param name=\"Name\" value=\"no\"></OBJECT><UL>"_s +
        Line(u"One &amp; all"_s, u"one.html"_s) + u"<UL>"_s + Line(u"Below"_s, u"b.html#x"_s) +
        u"</UL>"_s + Line(u"Heading"_s) + u"</UL>"_s);
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].title, u"One & all"_s);
    EXPECT_EQ(entries[0].page, u"one.html"_s);
    EXPECT_EQ(entries[0].level, 0);
    EXPECT_EQ(entries[1].page, u"b.html#x"_s);
    EXPECT_EQ(entries[1].level, 1);
    EXPECT_EQ(entries[2].level, 0);
    EXPECT_EQ(entries[2].page, QString());
}

TEST(Contents, NeverSkipsALevel)
{
    const auto entries = ReadContents(u"</UL></UL>"_s + Line(u"a"_s) + u"<UL><UL><UL><UL><UL>"_s +
                                      Line(u"b"_s) + Line(u"c"_s));
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].level, 0);
    EXPECT_EQ(entries[1].level, 1);
    EXPECT_EQ(entries[2].level, 2);
}

TEST(Contents, NestsNoDeeperThanAWindowCanWalk)
{
    QString html;
    for (int n = 0; n < 10'000; ++n)
        html += u"<UL>"_s + Line(u"deeper"_s);
    const auto entries = ReadContents(html);
    ASSERT_EQ(entries.size(), 10'000u);
    EXPECT_EQ(entries[31].level, 31);
    EXPECT_EQ(entries.back().level, 31);
}

TEST(Contents, IgnoresWhatIsNoLine)
{
    EXPECT_TRUE(ReadContents(u""_s).empty());
    EXPECT_TRUE(ReadContents(u"<param name=\"Name\" value=\"x\"></OBJECT>"_s).empty());
    EXPECT_TRUE(ReadContents(u"<OBJECT type=\"text/sitemap\"></OBJECT>"_s).empty());
}

} // namespace
