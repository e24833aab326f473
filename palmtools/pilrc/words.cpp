#include "palmtools/pilrc/words.h"

#include "palmtools/common/ascii.h"
#include "palmtools/common/shown.h"

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

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

} // namespace

WordScanner::WordScanner(std::string_view script, std::vector<Diagnostic> &warnings)
    : m_script(script), m_warnings(warnings)
{}

Word WordScanner::Next()
{
    SkipToWord();
    if (AtEnd()) {
        m_wordLine = LastLine();
        return {};
    }
    m_wordLine = m_line;
    const char first = m_script[m_position];
    if (first == '"')
        return ScanText();
    if (DigitValue(first, 10) >= 0)
        return ScanNumber();
    if (BeginsName(first))
        return ScanName();
    if (signs.find(first) != signs.npos)
        return WordUpTo(m_position + 1, WordKind::sign);
    if (first == '\0')
        FailAtZeroByte();
    FailHere("character '" + Shown({&first, 1}) + "' does not belong here");
}

bool WordScanner::StartsHere(std::string_view text) const
{
    return m_script.compare(m_position, text.size(), text) == 0;
}

bool WordScanner::AtLineEnd() const
{
    return IsLineEnd(m_script[m_position]);
}

void WordScanner::TakeLineEnd()
{
    m_position += StartsHere("\r\n") ? 2 : 1;
    ++m_line;
}

void WordScanner::SkipToWord()
{
    while (!AtEnd()) {
        const char c = m_script[m_position];
        if (c == ' ' || c == '\t')
            ++m_position;
        else if (IsLineEnd(c))
            TakeLineEnd();
        else if (StartsHere("//"))
            SkipLineComment();
        else if (StartsHere("/*"))
            SkipBlockComment();
        else
            return;
    }
}

void WordScanner::SkipLineComment()
{
    while (!AtEnd() && !AtLineEnd()) {
        if (m_script[m_position] == '\0')
            FailAtZeroByte();
        ++m_position;
    }
}

void WordScanner::SkipBlockComment()
{
    m_position += 2;
    for (std::size_t depth = 1; depth > 0;) {
        if (AtEnd())
            throw ScriptError(LastLine(), "the comment is not closed");
        if (StartsHere("/*")) {
            m_warnings.push_back({Severity::warning, m_line, "comment inside a comment"});
            m_position += 2;
            ++depth;
        } else if (StartsHere("*/")) {
            m_position += 2;
            --depth;
        } else if (AtLineEnd()) {
            TakeLineEnd();
        } else if (m_script[m_position] == '\0') {
            FailAtZeroByte();
        } else {
            ++m_position;
        }
    }
}

/// What follows the end of the last line is no line of its own.
int WordScanner::LastLine() const
{
    return !m_script.empty() && IsLineEnd(m_script.back()) ? m_line - 1 : m_line;
}

Word WordScanner::ScanText()
{
    for (std::size_t end = m_position + 1; end < m_script.size(); ++end) {
        const char c = m_script[end];
        if (c == '"')
            return WordUpTo(end + 1, WordKind::text);
        if (c == '\0')
            FailAtZeroByte();
        if (IsLineEnd(c))
            break;
        const std::string_view next = m_script.substr(end + 1, 1);
        if (c == '\\' && (next == "\"" || next == "\\"))
            ++end;
    }
    FailHere("the text is not closed on its line");
}

Word WordScanner::ScanNumber()
{
    const bool hexadecimal = StartsHere("0x") || StartsHere("0X");
    const int base = hexadecimal ? 16 : 10;
    const std::size_t begin = m_position + (hexadecimal ? 2 : 0);
    std::size_t end = begin;
    std::uint64_t value = 0;
    for (; end < m_script.size(); ++end) {
        const int digit = DigitValue(m_script[end], base);
        if (digit < 0)
            break;
        value = value * static_cast<unsigned>(base) + static_cast<unsigned>(digit);
        if (value > std::numeric_limits<std::uint32_t>::max())
            FailHere("the number is too large");
    }
    if (end == begin)
        FailHere("0x without a hexadecimal digit");
    return WordUpTo(end, WordKind::number, static_cast<std::uint32_t>(value));
}

Word WordScanner::ScanName()
{
    std::size_t end = m_position + 1;
    while (end < m_script.size() && ContinuesName(m_script[end]))
        ++end;
    return WordUpTo(end, WordKind::name);
}

Word WordScanner::WordUpTo(std::size_t end, WordKind kind, std::uint32_t value)
{
    const std::string_view written = m_script.substr(m_position, end - m_position);
    m_position = end;
    return {kind, written, value};
}

void WordScanner::FailHere(const std::string &text) const
{
    throw ScriptError(m_line, text);
}

void WordScanner::FailAtZeroByte() const
{
    FailHere("NUL byte in the script");
}

} // namespace palmtools
