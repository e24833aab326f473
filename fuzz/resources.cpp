// The data of one resource, through each decoder: a sound one, or a fault that has words.

#include "fuzz/require.h"
#include "readback/form_reader.h"
#include "readback/navigation_reader.h"
#include "readback/text_resources.h"

using namespace vellumo;

namespace {

template <typename T> bool IsSound(const Result<T> &decoded)
{
    Require(decoded || !decoded.error().text.isEmpty(), "a refusal has its reason");
    return bool(decoded);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = BytesOf(data, size);
    // The smallest object, item and text are a byte and more, so that no count grows beyond them.
    if (const auto form = ReadForm(bytes); IsSound(form)) {
        Require(form->objects.size() <= bytes.size(), "a form holds what its bytes tell");
        for (const FormObject &object : form->objects)
            Require(!Describe(object).isEmpty(), "an object has a name");
    }
    if (const auto navigation = ReadNavigation(bytes); IsSound(navigation))
        Require(navigation->items.size() <= bytes.size(), "so does a navigation");
    if (const auto table = ReadStringTable(bytes); IsSound(table))
        Require(table->entries.size() <= bytes.size(), "so does a string table");
    for (const Padding padding : {Padding::None, Padding::ToEven})
        if (const auto text = ReadTextResource(bytes, padding); IsSound(text))
            Require(bytes.startsWith(*text), "a text stands as it is");
    return 0;
}
