#include "palmtools/pilrc/string_table_statement.h"

#include "palmtools/pilrc/resource_types.h"

#include <utility>

namespace palmtools {
namespace {

constexpr std::int64_t mostTexts = 383;
constexpr std::size_t mostBytes = 32768; ///< of the texts with their zero bytes

} // namespace

void ReadStringTable(ArgumentReader &arguments, ResourceList &resources)
{
    ScriptReader &words = arguments.words();
    const std::uint16_t number = arguments.Id();
    const std::string_view prefix = arguments.Text();
    std::int64_t count = 0;
    Bytes entries;
    while (words.NextIs(WordKind::text)) {
        AppendZeroEnded(entries, arguments.Text());
        if (++count > mostTexts)
            words.Fail("the table has more than 383 texts");
        if (entries.size() > mostBytes)
            words.Fail("the texts of the table are longer than 32768 bytes");
    }
    Bytes bytes;
    AppendZeroEnded(bytes, prefix);
    AppendBigEndian16(bytes, count);
    bytes += entries;
    resources.Add(words, {stringTableType, number, std::move(bytes)});
}

} // namespace palmtools
