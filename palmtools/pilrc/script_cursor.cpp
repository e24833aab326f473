#include "palmtools/pilrc/script_cursor.h"

#include "palmtools/pilrc/diagnostics.h"

namespace palmtools {

std::string_view ScriptCursor::Take(std::size_t count)
{
    const std::string_view taken = m_script.substr(m_position, count);
    m_position += count;
    return taken;
}

void ScriptCursor::TakeLineEnd()
{
    m_position += rest().starts_with("\r\n") ? 2 : 1;
    ++m_line;
}

/// What follows the end of the last line is no line of its own.
int ScriptCursor::LastLine() const
{
    return !m_script.empty() && IsLineEnd(m_script.back()) ? m_line - 1 : m_line;
}

void ScriptCursor::Fail(const std::string &text) const
{
    throw ScriptError(m_line, text);
}

void ScriptCursor::FailAtZeroByte() const
{
    Fail("NUL byte in the script");
}

} // namespace palmtools
