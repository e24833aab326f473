// A page or a contents file of the help, whoever wrote it.

#include "fuzz/require.h"
#include "help/html_text.h"
#include "help/reader/contents.h"

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString html = DecodeHtml(BytesOf(data, size));
    qsizetype end = 0;
    for (const HtmlTag &tag : TagsOf(html)) {
        Require(tag.start >= end && tag.end > tag.start && tag.end <= html.size(),
                "tags stand in the text, one behind the other");
        Require(tag.name == tag.name.toLower(), "their names are in lower case");
        end = tag.end;
    }
    Require(TitleIn(html).simplified() == TitleIn(html), "a title's white space is single");
    int level = -1;
    for (const ContentsEntry &entry : ReadContents(html)) {
        Require(entry.level >= 0 && entry.level <= level + 1, "no level is left out");
        level = entry.level;
    }
    return 0;
}
