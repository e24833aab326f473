#include "palmtools/pilrc/hex_statement.h"

#include <string>
#include <utility>

namespace palmtools {
namespace {

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

} // namespace palmtools
