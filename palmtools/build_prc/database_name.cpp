#include "palmtools/build_prc/database_name.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <optional>

namespace palmtools {
namespace {

constexpr std::size_t longestName = 31;

/// The characters of the bytes 0x80 to 0x9F; every other byte is its own character.
constexpr char32_t upperCharacters[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 0x88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 0x98
};

/// How UTF-8 writes characters in so many bytes: the bits of the first byte under the mask.
struct SequenceForm {
    std::size_t length;
    char32_t least; ///< a smaller character has a shorter form
    unsigned char mask, lead;
};

constexpr SequenceForm sequenceForms[] = {
    {1, 0, 0x80, 0x00},
    {2, 0x80, 0xE0, 0xC0},
    {3, 0x800, 0xF0, 0xE0},
    {4, 0x10000, 0xF8, 0xF0},
};

const SequenceForm *FormOf(unsigned char lead)
{
    for (const SequenceForm &form : sequenceForms) {
        if ((lead & form.mask) == form.lead)
            return &form;
    }
    return nullptr;
}

/// Takes a character of UTF-8 from the front; nothing where the bytes are none.
std::optional<char32_t> TakeCharacter(std::string_view &rest)
{
    const auto lead = static_cast<unsigned char>(rest.front());
    const SequenceForm *form = FormOf(lead);
    if (!form || rest.size() < form->length)
        return std::nullopt;
    auto character = static_cast<char32_t>(lead & static_cast<unsigned char>(~form->mask));
    for (const char c : rest.substr(1, form->length - 1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0) != 0x80)
            return std::nullopt;
        character = character << 6 | static_cast<char32_t>(byte & 0x3F);
    }
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < form->least || character > 0x10FFFF || isSurrogate)
        return std::nullopt;
    rest.remove_prefix(form->length);
    return character;
}

/// The characters of a text in UTF-8; nothing if it is none.
std::optional<std::u32string> CharactersOf(std::string_view text)
{
    std::u32string characters;
    while (!text.empty()) {
        const auto character = TakeCharacter(text);
        if (!character)
            return std::nullopt;
        characters += *character;
    }
    return characters;
}

std::optional<char> ByteOf(char32_t character)
{
    const auto byte = [](auto code) { return static_cast<char>(static_cast<unsigned char>(code)); };
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return byte(character);
    const auto found = std::find(std::begin(upperCharacters), std::end(upperCharacters), character);
    if (found == std::end(upperCharacters))
        return std::nullopt;
    return byte(0x80 + (found - std::begin(upperCharacters)));
}

std::string ShownCharacter(char32_t character)
{
    char shown[16];
    std::snprintf(shown, sizeof shown, "U+%04lX", static_cast<unsigned long>(character));
    return shown;
}

Result<std::string> Windows1252Of(std::string_view given)
{
    const auto characters = CharactersOf(given);
    if (!characters)
        return std::string(given);
    std::string name;
    for (const char32_t character : *characters) {
        const auto byte = ByteOf(character);
        if (!byte) {
            return Error{"the database name has a character that the handheld lacks: " +
                         ShownCharacter(character)};
        }
        name += *byte;
    }
    return name;
}

} // namespace

Result<std::string> DatabaseNameOf(std::string_view given)
{
    auto name = Windows1252Of(given);
    if (name && name->size() > longestName) {
        return Error{"the database name has " + std::to_string(name->size()) +
                     " bytes, more than 31"};
    }
    return name;
}

} // namespace palmtools
