#pragma once

#include "palmtools/pilrc/words.h"

#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

/// Reads a script word by word, with one word of look-ahead.
///
/// A message names the line of the last word read, looked at or taken, so a caller looks ahead
/// only where it has to.
class ScriptReader
{
public:
    /// Warnings are added to the list; the script and the list must outlive the reader.
    ScriptReader(std::string_view script, std::vector<Diagnostic> &warnings);

    const Word &Peek();
    Word Take();

    bool NextIs(WordKind kind) { return Peek().kind == kind; }
    bool NextIsName(std::string_view name);
    bool NextIsSign(char sign);

    /// Takes the next word if it is this one.
    bool TakeName(std::string_view name);
    bool TakeSign(char sign);

    // These throw ScriptError if another word is next.

    void ExpectName(std::string_view name);
    void ExpectSign(char sign);

    void Warn(std::string text);
    [[noreturn]] void Fail(const std::string &text) const;
    /// Says what should stand in place of the next word.
    [[noreturn]] void FailExpected(std::string_view what);

private:
    WordScanner m_scanner;
    std::vector<Diagnostic> &m_warnings;
    Word m_next;
    bool m_hasNext = false;
};

} // namespace palmtools
