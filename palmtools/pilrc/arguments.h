#pragma once

#include "palmtools/pilrc/numbers.h"
#include "palmtools/pilrc/script_reader.h"
#include "palmtools/pilrc/text_store.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace palmtools {

/// A place as written; a size that is missing is to be settled from what the object shows.
struct Place {
    std::int64_t x = 0, y = 0;
    std::optional<std::int64_t> w = {}, h = {};
};

/// Reads what statements and objects take.
///
/// Every function takes the words of one argument, looks at the word after it where its end cannot
/// be seen otherwise, and throws ScriptError if the argument is missing or out of range.
class ArgumentReader
{
public:
    /// The reader must outlive this.
    explicit ArgumentReader(ScriptReader &words) : m_words(words) {}

    ScriptReader &words() { return m_words; }

    /// One text or several that are joined. The bytes live as long as the script and this.
    std::string_view Text();

    std::int64_t Number() { return ReadNumber(m_words, m_previous); }
    /// A number for a field of 8, 16 or 32 bits, signed or not.
    std::int64_t Field(int bits);
    /// The number of a resource or of an object, after the word ID or without it.
    std::uint16_t Id();

    Place Position();
    Place PositionAndSize();

    /// Where the last object stands to which later ones refer.
    const Rectangle &previous() const { return m_previous; }
    void SetPrevious(const Rectangle &rectangle) { m_previous = rectangle; }

    /// Fails unless the value fits a field of so many bits.
    std::int64_t CheckedField(std::int64_t value, int bits);

private:
    Place ReadPlace(bool withSize);
    std::optional<std::int64_t> Extent();
    bool AtTextJoint();

    ScriptReader &m_words;
    Rectangle m_previous;
    TextStore m_texts; ///< those that do not stand in the script as they are
};

} // namespace palmtools
