#include "palmtools/pilrc/arguments.h"

#include "palmtools/pilrc/text_escapes.h"

namespace palmtools {
namespace {

constexpr std::int64_t firstSystemNumber = 10000; ///< the handheld's own begin here
constexpr std::int64_t largestNumber16 = 0xFFFF;

std::string_view WithoutQuotes(std::string_view written)
{
    return written.substr(1, written.size() - 2);
}

} // namespace

std::string_view ArgumentReader::Text()
{
    if (!m_words.NextIs(WordKind::text))
        m_words.FailExpected("text");
    const std::string_view first = WithoutQuotes(m_words.Take().written);
    // Nearly every text stands in the script as it is meant; the others need bytes of their own.
    if (!AtTextJoint() && first.find('\\') == first.npos)
        return first;

    std::string text;
    AppendUnescaped(first, text);
    while (AtTextJoint()) {
        m_words.Take();
        if (!m_words.NextIs(WordKind::text))
            m_words.FailExpected("text");
        AppendUnescaped(WithoutQuotes(m_words.Take().written), text);
    }
    return m_texts.Keep(text);
}

bool ArgumentReader::AtTextJoint()
{
    return m_words.NextIsSign('+') || m_words.NextIsSign('\\');
}

std::int64_t ArgumentReader::Field(int bits)
{
    return CheckedField(Number(), bits);
}

/// A field takes what fits it with a sign or without: both leave the same bits.
std::int64_t ArgumentReader::CheckedField(std::int64_t value, int bits)
{
    const std::int64_t range = std::int64_t{1} << bits;
    if (value < -range / 2 || value >= range) {
        m_words.Fail(std::to_string(value) + " does not fit into " + std::to_string(bits) +
                     " bits");
    }
    return value;
}

std::uint16_t ArgumentReader::Id()
{
    m_words.TakeName("ID");
    const std::int64_t number = Number();
    if (number < 0 || number > largestNumber16)
        m_words.Fail(std::to_string(number) + " is no resource number");
    if (number >= firstSystemNumber) {
        m_words.Warn("number " + std::to_string(number) + " lies in the range kept for the system");
    }
    return static_cast<std::uint16_t>(number);
}

Place ArgumentReader::Position()
{
    return ReadPlace(false);
}

Place ArgumentReader::PositionAndSize()
{
    return ReadPlace(true);
}

Place ArgumentReader::ReadPlace(bool withSize)
{
    const bool inParentheses = m_words.TakeName("AT");
    if (inParentheses)
        m_words.ExpectSign('(');
    Place place;
    place.x = Field(16);
    place.y = Field(16);
    if (withSize) {
        place.w = Extent();
        place.h = Extent();
    }
    if (inParentheses)
        m_words.ExpectSign(')');
    return place;
}

std::optional<std::int64_t> ArgumentReader::Extent()
{
    if (m_words.TakeName("AUTO"))
        return std::nullopt;
    return Field(16);
}

} // namespace palmtools
