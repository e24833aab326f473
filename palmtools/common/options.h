#pragma once

#include "palmtools/common/result.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

/// The arguments that follow the name of a program, taken from the front; they must outlive this.
class CommandLine
{
public:
    explicit CommandLine(const std::vector<std::string> &arguments) : m_arguments(arguments) {}

    bool AtEnd() const { return m_next == m_arguments.size(); }
    bool AtOption() const { return !AtEnd() && m_arguments[m_next].starts_with('-'); }

    /// There must be one.
    const std::string &Take() { return m_arguments[m_next++]; }

private:
    const std::vector<std::string> &m_arguments;
    std::size_t m_next = 0;
};

/// An option of a tool; either of its names may be empty.
struct Option {
    std::string_view shortName, longName;
    bool takesValue;
    std::function<void(const std::string &value)> apply; ///< the value is empty if none is taken
};

enum class NameCase { counts, ignored };

/// What a tool is called for: its work, or a word about itself.
enum class Wish { work, help, version };

/// Applies the options at the front of a command line, so that a plain argument or the end is next.
///
/// The value of an option is the next argument, whatever that begins with; behind a long name and a
/// '=' it may stand in the same argument. Every tool knows --help and --version, which end the
/// reading. Fails at an option that is not listed and at one that lacks its value.
Result<Wish> ReadOptions(CommandLine &line, std::span<const Option> options, NameCase nameCase);

} // namespace palmtools
