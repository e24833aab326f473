#include "palmtools/pilrc/words.h"

#include "palmtools/common/ascii.h"
#include "palmtools/common/shown.h"
#include "palmtools/pilrc/blanks.h"

#include <cstddef>
#include <limits>
#include <string>

namespace palmtools {
namespace {

constexpr std::string_view signs = ".+-*%()[]{},?:^\\#@;|/<>=";

bool BeginsName(char c)
{
    const char upper = UpperCase(c);
    return (upper >= 'A' && upper <= 'Z') || c == '_';
}

bool ContinuesName(char c)
{
    return BeginsName(c) || DigitValue(c, 10) >= 0;
}

/// Whether a backslash takes the byte behind it, so that this one neither ends the text nor takes
/// another. What else a backslash means is a matter of text_escapes.h.
bool IsTakenByBackslash(std::string_view pair)
{
    return pair == "\\\"" || pair == "\\\\";
}

Word ScanText(ScriptCursor &cursor)
{
    const std::string_view rest = cursor.rest();
    for (std::size_t end = 1; end < rest.size() && !IsLineEnd(rest[end]); ++end) {
        if (rest[end] == '"')
            return {WordKind::text, cursor.Take(end + 1)};
        if (rest[end] == '\0')
            cursor.FailAtZeroByte();
        if (rest[end] == '\\' && IsTakenByBackslash(rest.substr(end, 2)))
            ++end;
    }
    cursor.Fail("the text is not closed on its line");
}

Word ScanNumber(ScriptCursor &cursor)
{
    const std::string_view rest = cursor.rest();
    const bool isHexadecimal = rest.starts_with("0x") || rest.starts_with("0X");
    const int base = isHexadecimal ? 16 : 10;
    const std::size_t begin = isHexadecimal ? 2 : 0;
    std::size_t end = begin;
    std::uint64_t value = 0;
    for (; end < rest.size() && DigitValue(rest[end], base) >= 0; ++end) {
        value = value * static_cast<unsigned>(base) +
                static_cast<unsigned>(DigitValue(rest[end], base));
        if (value > std::numeric_limits<std::uint32_t>::max())
            cursor.Fail("the number is too large");
    }
    if (end == begin)
        cursor.Fail("0x without a hexadecimal digit");
    return {WordKind::number, cursor.Take(end), static_cast<std::uint32_t>(value)};
}

Word ScanName(ScriptCursor &cursor)
{
    const std::string_view rest = cursor.rest();
    std::size_t end = 1;
    while (end < rest.size() && ContinuesName(rest[end]))
        ++end;
    return {WordKind::name, cursor.Take(end)};
}

Word Scan(ScriptCursor &cursor)
{
    const char first = cursor.Front();
    if (first == '"')
        return ScanText(cursor);
    if (DigitValue(first, 10) >= 0)
        return ScanNumber(cursor);
    if (BeginsName(first))
        return ScanName(cursor);
    if (signs.find(first) != signs.npos)
        return {WordKind::sign, cursor.Take(1)};
    if (first == '\0')
        cursor.FailAtZeroByte();
    cursor.Fail("character '" + Shown({&first, 1}) + "' does not belong here");
}

} // namespace

Word WordScanner::Next()
{
    TakeBlanks(m_cursor, m_warnings);
    if (m_cursor.AtEnd()) {
        m_line = m_cursor.LastLine();
        return {};
    }
    m_line = m_cursor.line();
    return Scan(m_cursor);
}

} // namespace palmtools
