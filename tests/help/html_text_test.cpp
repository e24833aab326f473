#include "help/html_text.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(HtmlText, FindsTheTitle)
{
    const struct {
        const char *what;
        QString html, title;
    } rows[] = {
        {"plain", u"<html><head><title>Name</title>"_s, u"Name"_s},
        {"capitals and white space", u"<TITLE lang=en>\n A  name\r\n</TITLE>"_s, u"A name"_s},
        {"entities", u"<title>&lt;A&gt; &amp; &#66;&#x43;</title>"_s, u"<A> & BC"_s},
        {"unknown entities stay", u"<title>&bogus; &#x110000; & so</title>"_s,
         u"&bogus; &#x110000; & so"_s},
        {"no end", u"<title>Name"_s, u""_s},
        {"none", u"<h1>Name</h1>"_s, u""_s},
        {"nothing", u""_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(TitleIn(row.html), row.title);
    }
}

TEST(HtmlText, ReadsAttributesInAllTheirQuotes)
{
    const auto tags = TagsOf(uR"re(<A HREF = "x>y.html" name='it&apos;s' size=3 checked>)re"_s);
    ASSERT_EQ(tags.size(), 1u);
    EXPECT_EQ(tags[0].name, u"a"_s);
    EXPECT_EQ(tags[0].Attribute(u"href"_s), u"x>y.html"_s);
    EXPECT_EQ(tags[0].Attribute(u"name"_s), u"it's"_s);
    EXPECT_EQ(tags[0].Attribute(u"size"_s), u"3"_s);
    EXPECT_EQ(tags[0].Attribute(u"color"_s), QString());
}

TEST(HtmlText, DecodesBothCodings)
{
    EXPECT_EQ(DecodeHtml("\xC3\xA9"), u"\u00E9"_s);
    EXPECT_EQ(DecodeHtml("\x93\xE9\x94"), u"\u201C\u00E9\u201D"_s);
    EXPECT_EQ(DecodeHtml("Caf\xE9"), u"Caf\u00E9"_s) << "begins a longer letter of UTF-8";
    EXPECT_EQ(DecodeHtml("\xEF\xBB\xBFx"), u"x"_s) << "the mark of UTF-8 files";
    EXPECT_EQ(DecodeHtml(""), QString());
}

TEST(HtmlText, TakesALongTextWithoutAnEnd)
{
    EXPECT_TRUE(TagsOf(u"<a "_s + QString(1 << 20, u'x')).empty());
    EXPECT_TRUE(TagsOf(u"<a b=\""_s + QString(1 << 20, u'x')).empty());
}

} // namespace
