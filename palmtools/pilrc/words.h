#pragma once

#include "palmtools/pilrc/diagnostics.h"
#include "palmtools/pilrc/script_cursor.h"

#include <cstdint>
#include <string_view>

namespace palmtools {

enum class WordKind { end, text, number, name, sign };

/// A word of a script. What is written points into the script; a text has its quotes.
struct Word {
    WordKind kind = WordKind::end;
    std::string_view written = {};
    std::uint32_t value = 0; ///< of a number
};

/// Cuts a script into words and counts its lines.
///
/// The script must outlive the scanner and the words.
class WordScanner
{
public:
    /// Warnings about comments are added to the warnings, which must outlive the scanner.
    WordScanner(std::string_view script, Warnings &warnings)
        : m_cursor(script), m_warnings(warnings)
    {}

    /// The next word; at the end of the script the word end, as often as asked for.
    /// Throws ScriptError where the bytes make no word.
    Word Next();

    /// The line of the word that Next() gave, at the end that of the last line.
    int line() const { return m_line; }

private:
    ScriptCursor m_cursor;
    Warnings &m_warnings;
    int m_line = 1;
};

} // namespace palmtools
