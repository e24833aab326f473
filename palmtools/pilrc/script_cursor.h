#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace palmtools {

/// Whether a line ends with this byte; CR LF together end one line.
constexpr bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// A place in a script that moves forward only, and the line on which it is.
class ScriptCursor
{
public:
    /// The script must outlive the cursor.
    explicit ScriptCursor(std::string_view script) : m_script(script) {}

    bool AtEnd() const { return m_position == m_script.size(); }

    /// What is not taken yet.
    std::string_view rest() const { return m_script.substr(m_position); }

    /// The next byte; there must be one.
    char Front() const { return m_script[m_position]; }

    /// Takes bytes that are there and have no line end among them.
    std::string_view Take(std::size_t count);

    /// Takes the line end that is next.
    void TakeLineEnd();

    /// Counts from 1.
    int line() const { return m_line; }

    /// The line of the end of the script, which must be reached.
    int LastLine() const;

    // These throw ScriptError at the line of the cursor.

    [[noreturn]] void Fail(const std::string &text) const;
    [[noreturn]] void FailAtZeroByte() const;

private:
    std::string_view m_script;
    std::size_t m_position = 0;
    int m_line = 1;
};

} // namespace palmtools
