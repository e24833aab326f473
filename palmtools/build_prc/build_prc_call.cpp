#include "palmtools/build_prc/build_prc_call.h"

#include "palmtools/common/shown.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace palmtools {
namespace {

/// What the options say, before the plain arguments are dealt out.
struct Options {
    BuildPrcCall call = {};
    std::optional<std::string> output = {};
    std::optional<std::string> name = {};
    std::optional<std::string> creator = {};
};

struct ValueOption {
    std::string_view shortName, longName;
    void (*apply)(Options &options, const std::string &value);
};

struct FlagOption {
    std::string_view name;
    void (*apply)(BuildPrcCall &call);
};

using Wish = BuildPrcCall::Wish;

constexpr ValueOption valueOptions[] = {
    {"-t", "--type", [](Options &options, const std::string &text) { options.call.type = text; }},
    {"-c", "--creator", [](Options &options, const std::string &text) { options.creator = text; }},
    {"-n", "--name", [](Options &options, const std::string &text) { options.name = text; }},
    {"-o", "--output", [](Options &options, const std::string &text) { options.output = text; }},
};

constexpr FlagOption flagOptions[] = {
    {"--hidden", [](BuildPrcCall &call) { call.hidden = true; }},
    {"--no-check-resources", [](BuildPrcCall &) {}},
    {"--no-check-header", [](BuildPrcCall &call) { call.warnsAboutHeader = false; }},
    {"--no-check", [](BuildPrcCall &call) { call.warnsAboutHeader = false; }},
    {"--help", [](BuildPrcCall &call) { call.wish = Wish::help; }},
    {"--version", [](BuildPrcCall &call) { call.wish = Wish::version; }},
};

class CallReader
{
public:
    explicit CallReader(const std::vector<std::string> &arguments) : m_arguments(arguments) {}

    Result<BuildPrcCall> Read();

private:
    bool AtOption() const;
    std::optional<Error> ReadOption();
    std::optional<Error> ReadValue(const ValueOption &option, const std::string &argument);
    std::optional<Error> DealOutPlainArguments();
    std::optional<Error> TakeOptionsOnly();

    const std::vector<std::string> &m_arguments;
    std::size_t m_next = 0;
    Options m_options;
};

Result<BuildPrcCall> CallReader::Read()
{
    while (m_options.call.wish == Wish::build && AtOption()) {
        if (const auto error = ReadOption())
            return *error;
    }
    if (m_options.call.wish == Wish::build) {
        if (const auto error = DealOutPlainArguments())
            return *error;
    }
    return m_options.call;
}

bool CallReader::AtOption() const
{
    return m_next < m_arguments.size() && m_arguments[m_next].starts_with('-');
}

std::optional<Error> CallReader::ReadOption()
{
    const std::string &argument = m_arguments[m_next++];
    for (const FlagOption &option : flagOptions) {
        if (argument == option.name) {
            option.apply(m_options.call);
            return std::nullopt;
        }
    }
    const std::string_view name = std::string_view(argument).substr(0, argument.find('='));
    for (const ValueOption &option : valueOptions) {
        if (argument == option.shortName || name == option.longName)
            return ReadValue(option, argument);
    }
    return Error{"unknown option '" + Shown(argument) + "'"};
}

/// The value stands behind a '=' in the argument or is the next one, whatever that begins with.
std::optional<Error> CallReader::ReadValue(const ValueOption &option, const std::string &argument)
{
    const std::size_t equals = argument.find('=');
    if (equals != argument.npos) {
        option.apply(m_options, argument.substr(equals + 1));
    } else {
        if (m_next == m_arguments.size())
            return Error{"option '" + argument + "' lacks its argument"};
        option.apply(m_options, m_arguments[m_next++]);
    }
    return std::nullopt;
}

std::optional<Error> CallReader::DealOutPlainArguments()
{
    if (m_options.output || m_options.name || m_options.creator) {
        if (const auto error = TakeOptionsOnly())
            return error;
    } else {
        for (std::string *place :
             {&m_options.call.output, &m_options.call.name, &m_options.call.creator}) {
            if (m_next == m_arguments.size())
                return Error{"OUT, NAME, CREATOR and FILE.ro are required"};
            *place = m_arguments[m_next++];
        }
    }
    if (m_next == m_arguments.size())
        return Error{"the resource file is missing"};
    m_options.call.input = m_arguments[m_next++];
    if (m_next < m_arguments.size())
        return Error{"too many arguments"};
    return std::nullopt;
}

std::optional<Error> CallReader::TakeOptionsOnly()
{
    if (!m_options.output || !m_options.name || !m_options.creator)
        return Error{"options -o, -n and -c go together"};
    m_options.call.output = *m_options.output;
    m_options.call.name = *m_options.name;
    m_options.call.creator = *m_options.creator;
    return std::nullopt;
}

} // namespace

Result<BuildPrcCall> ReadBuildPrcCall(const std::vector<std::string> &arguments)
{
    return CallReader(arguments).Read();
}

} // namespace palmtools
