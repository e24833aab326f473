#include "palmtools/pilrc/statements.h"

#include <string>
#include <utility>

namespace palmtools {
namespace {

constexpr std::int64_t mostTableTexts = 383;
constexpr std::size_t mostTableBytes = 32768;

/// A bare number: an operator after it belongs to the next statement.
void AppendHexByte(Bytes &bytes, ScriptReader &words)
{
    const Word word = words.Take();
    if (word.value > 0xFF)
        words.Fail("the byte " + std::to_string(word.value) + " is larger than 255");
    AppendByte(bytes, word.value);
}

} // namespace

void ReadHex(ArgumentReader &arguments, ResourceList &resources)
{
    ScriptReader &words = arguments.words();
    Resource resource;
    resource.type = FourBytesOf(arguments.Text());
    resource.number = arguments.Id();
    for (;;) {
        if (words.NextIs(WordKind::number))
            AppendHexByte(resource.bytes, words);
        else if (words.NextIs(WordKind::text))
            resource.bytes += arguments.Text();
        else
            break;
    }
    resources.Add(words, std::move(resource));
}

void ReadStringTable(ArgumentReader &arguments, ResourceList &resources)
{
    ScriptReader &words = arguments.words();
    const std::uint16_t number = arguments.Id();
    const std::string_view prefix = arguments.Text();
    std::int64_t count = 0;
    Bytes entries;
    while (words.NextIs(WordKind::text)) {
        AppendZeroEnded(entries, arguments.Text());
        if (++count > mostTableTexts)
            words.Fail("the table has more than 383 texts");
        if (entries.size() > mostTableBytes)
            words.Fail("the texts of the table are longer than 32768 bytes");
    }
    Bytes bytes;
    AppendZeroEnded(bytes, prefix);
    AppendBigEndian16(bytes, count);
    bytes += entries;
    resources.Add(words, {FourBytesOf("tSTL"), number, std::move(bytes)});
}

void ReadApplicationIconName(ArgumentReader &arguments, ResourceList &resources)
{
    const std::uint16_t number = arguments.Id();
    Bytes bytes;
    AppendZeroEnded(bytes, arguments.Text());
    PadToEven(bytes);
    resources.Add(arguments.words(), {FourBytesOf("tAIN"), number, std::move(bytes)});
}

void ReadVersion(ArgumentReader &arguments, ResourceList &resources)
{
    const bool isNumbered = !arguments.words().NextIs(WordKind::text);
    const std::uint16_t number = isNumbered ? arguments.Id() : std::uint16_t{1};
    Bytes bytes;
    AppendZeroEnded(bytes, arguments.Text());
    resources.Add(arguments.words(), {FourBytesOf("tver"), number, std::move(bytes)});
}

} // namespace palmtools
