#pragma once

#include "palmtools/pilrc/diagnostics.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

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
    /// Warnings about comments are added to the list.
    WordScanner(std::string_view script, std::vector<Diagnostic> &warnings);

    /// The next word; at the end of the script the word end, as often as asked for.
    /// Throws ScriptError where the bytes make no word.
    Word Next();

    /// The line of the word that Next() gave, at the end that of the last line.
    int line() const { return m_wordLine; }

private:
    bool AtEnd() const { return m_position == m_script.size(); }
    bool StartsHere(std::string_view text) const;
    bool AtLineEnd() const;
    void TakeLineEnd();
    void SkipToWord();
    void SkipLineComment();
    void SkipBlockComment();
    int LastLine() const;

    Word ScanText();
    Word ScanNumber();
    Word ScanName();
    Word WordUpTo(std::size_t end, WordKind kind, std::uint32_t value = 0);
    [[noreturn]] void FailHere(const std::string &text) const;
    [[noreturn]] void FailAtZeroByte() const;

    std::string_view m_script;
    std::vector<Diagnostic> &m_warnings;
    std::size_t m_position = 0;
    int m_line = 1;
    int m_wordLine = 1;
};

} // namespace palmtools
