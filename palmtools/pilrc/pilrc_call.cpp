#include "palmtools/pilrc/pilrc_call.h"

#include "palmtools/common/ascii.h"
#include "palmtools/common/shown.h"

#include <cstddef>
#include <optional>

namespace palmtools {
namespace {

/// What the options say, before it is judged.
struct Options {
    PilrcCall call = {};
    bool asksForOneFile = false;
    std::optional<std::string> output = {};
    bool hasSeveralOutputs = false;

    void SetOutput(const std::string &path)
    {
        hasSeveralOutputs = output.has_value();
        output = path;
    }
};

struct Option {
    std::string_view name;
    bool takesValue;
    void (*apply)(Options &options, const std::string &value);
};

using Wish = PilrcCall::Wish;

constexpr Option optionTable[] = {
    {"-ro", false, [](Options &options, const std::string &) { options.asksForOneFile = true; }},
    {"-I", true,
     [](Options &options, const std::string &value) { options.call.folders.push_back(value); }},
    {"-q", false, [](Options &options, const std::string &) { options.call.quiet = true; }},
    {"-V", false,
     [](Options &options, const std::string &) { options.call.style = MessageStyle::microsoft; }},
    {"-o", true, [](Options &options, const std::string &value) { options.SetOutput(value); }},
    {"--help", false,
     [](Options &options, const std::string &) { options.call.wish = Wish::help; }},
    {"--version", false,
     [](Options &options, const std::string &) { options.call.wish = Wish::version; }},
};

const Option *OptionOf(std::string_view argument)
{
    for (const Option &option : optionTable) {
        if (EqualIgnoringCase(option.name, argument))
            return &option;
    }
    return nullptr;
}

bool IsOption(std::string_view argument)
{
    return argument.substr(0, 1) == "-";
}

/// Takes the options at the front; next is then the first plain argument. A wish for help or for
/// the version ends the reading.
std::optional<Error> ReadOptions(const std::vector<std::string> &arguments, Options &options,
                                 std::size_t &next)
{
    while (next < arguments.size() && IsOption(arguments[next])) {
        const std::string &name = arguments[next++];
        const Option *option = OptionOf(name);
        if (!option)
            return Error{"unknown option '" + Shown(name) + "'"};
        if (option->takesValue && next == arguments.size())
            return Error{"option '" + name + "' lacks its argument"};
        option->apply(options, option->takesValue ? arguments[next++] : std::string());
        if (options.call.wish != Wish::compile)
            break;
    }
    return std::nullopt;
}

} // namespace

Result<PilrcCall> ReadPilrcCall(const std::vector<std::string> &arguments)
{
    Options options;
    std::size_t next = 0;
    if (const auto error = ReadOptions(arguments, options, next))
        return *error;
    if (options.call.wish != Wish::compile)
        return options.call;
    if (!options.asksForOneFile)
        return Error{"option '-ro' is missing; resources are written to one file only"};
    if (next == arguments.size())
        return Error{"the script is missing"};
    options.call.script = arguments[next++];
    if (next < arguments.size())
        options.SetOutput(arguments[next++]);
    if (next < arguments.size() || options.hasSeveralOutputs)
        return Error{"too many arguments"};
    options.call.output = ResourceFileOf(options.call.script, options.output.value_or("."));
    return options.call;
}

std::string ResourceFileOf(std::string_view script, std::string_view asked)
{
    if (asked == ".") {
        if (EndsIgnoringCase(script, ".rcp"))
            script.remove_suffix(4);
        return std::string(script) + ".ro";
    }
    const std::size_t separator = asked.find_last_of("/\\");
    const std::string_view name = separator == asked.npos ? asked : asked.substr(separator + 1);
    const bool hasEnding = name.find('.') != name.npos;
    return std::string(asked) + (hasEnding ? "" : ".ro");
}

} // namespace palmtools
