// The data of a form: whatever stands in it, it is drawn on a page that is well-formed XML, and
// that grows with the bytes and not with the numbers in them.

#include "fuzz/require.h"
#include "screens/screens_page.h"

#include <QXmlStreamReader>

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const PalmDatabase database = {.name = "fuzz", .resources = {{"tFRM", 1, BytesOf(data, size)}}};
    const QByteArray page = ScreensPage({ScreensOf(database)});
    QXmlStreamReader reader(page);
    while (!reader.atEnd())
        reader.readNext();
    Require(!reader.hasError(), "the page is well-formed");
    constexpr qsizetype style = 20'000, mostPerByte = 200;
    Require(page.size() <= style + mostPerByte * qsizetype(size), "the page is in proportion");
    return 0;
}
