#pragma once

#include "palmtools/common/ascii.h"
#include "palmtools/pilrc/words.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace palmtools {

/// Reads a script word by word, with one word of look-ahead.
///
/// A message names the line of the last word read, looked at or taken, so a caller looks ahead
/// only where it has to.
class ScriptReader
{
public:
    /// The script and the warnings, which it adds to, must outlive the reader.
    ScriptReader(std::string_view script, Warnings &warnings);

    const Word &Peek();
    Word Take();

    bool NextIs(WordKind kind) { return Peek().kind == kind; }
    bool NextIsName(std::string_view name);
    bool NextIsSign(char sign);

    /// The row of a table that has the next word as its name, or nothing; the case does not count.
    template <typename Row, std::size_t count> const Row *NextIn(const Row (&table)[count]);
    /// Likewise, and takes the word if there is such a row.
    template <typename Row, std::size_t count> const Row *TakeIn(const Row (&table)[count]);

    /// Takes the next word if it is this one.
    bool TakeName(std::string_view name);
    bool TakeSign(char sign);

    // These throw ScriptError if another word is next.

    void ExpectName(std::string_view name);
    void ExpectSign(char sign);

    void Warn(std::string_view text);
    [[noreturn]] void Fail(const std::string &text) const;
    /// Says what should stand in place of the next word.
    [[noreturn]] void FailExpected(std::string_view what);

private:
    WordScanner m_scanner;
    Warnings &m_warnings;
    Word m_next;
    bool m_hasNext = false;
};

template <typename Row, std::size_t count>
const Row *ScriptReader::NextIn(const Row (&table)[count])
{
    if (!NextIs(WordKind::name))
        return nullptr;
    const auto row = std::ranges::find_if(
        table, [this](std::string_view name) { return EqualIgnoringCase(m_next.written, name); },
        &Row::name);
    return row == std::end(table) ? nullptr : row;
}

template <typename Row, std::size_t count>
const Row *ScriptReader::TakeIn(const Row (&table)[count])
{
    const Row *row = NextIn(table);
    if (row)
        Take();
    return row;
}

} // namespace palmtools
