#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

enum class Severity { warning, error };

/// What there is to say about a script; line counts from 1.
struct Diagnostic {
    Severity severity;
    int line;
    std::string text;
};

/// The warnings about a script as they arise: the first of them, and how many more there are. A
/// script can give rise to more than memory holds.
class Warnings
{
public:
    static constexpr std::size_t most = 100; ///< that are kept

    void Add(int line, std::string_view text);

    const std::vector<Diagnostic> &kept() const { return m_kept; }
    std::size_t more() const { return m_more; }

private:
    std::vector<Diagnostic> m_kept;
    std::size_t m_more = 0;
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

// One line of output each, with its line end.

std::string MessageOf(const Diagnostic &diagnostic, std::string_view path, MessageStyle style);
/// Empty where there are no more warnings than were kept.
std::string MessageOfMore(std::size_t warnings);

} // namespace palmtools
