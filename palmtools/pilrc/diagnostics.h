#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace palmtools {

enum class Severity { warning, error };

/// What there is to say about a script; line counts from 1.
struct Diagnostic {
    Severity severity;
    int line;
    std::string text;
};

/// Stops the reading of a script. Thrown from any depth of it and caught only by CompileScript().
class ScriptError : public std::runtime_error
{
public:
    ScriptError(int line, const std::string &text) : std::runtime_error(text), m_line(line) {}
    int line() const { return m_line; }

private:
    int m_line;
};

enum class MessageStyle {
    gnu,       ///< PATH:LINE: error: TEXT
    microsoft, ///< PATH(LINE): error : TEXT
};

/// One line of output, with its line end.
std::string MessageOf(const Diagnostic &diagnostic, std::string_view path, MessageStyle style);

} // namespace palmtools
