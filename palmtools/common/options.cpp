#include "palmtools/common/options.h"

#include "palmtools/common/ascii.h"
#include "palmtools/common/shown.h"

#include <algorithm>
#include <optional>

namespace palmtools {
namespace {

bool Same(std::string_view written, std::string_view name, NameCase nameCase)
{
    return nameCase == NameCase::ignored ? EqualIgnoringCase(written, name) : written == name;
}

/// An empty name is never written: an option begins with a minus.
bool IsWrittenAs(const Option &option, std::string_view argument, NameCase nameCase)
{
    const std::size_t end = option.takesValue ? argument.find('=') : argument.npos;
    return Same(argument, option.shortName, nameCase) ||
           Same(argument.substr(0, end), option.longName, nameCase);
}

std::optional<Error> Apply(const Option &option, const std::string &argument, CommandLine &line)
{
    const std::size_t equals = argument.find('=');
    if (!option.takesValue)
        option.apply({});
    else if (equals != argument.npos)
        option.apply(argument.substr(equals + 1));
    else if (line.AtEnd())
        return Error{"option '" + argument + "' lacks its argument"};
    else
        option.apply(line.Take());
    return std::nullopt;
}

} // namespace

Result<Wish> ReadOptions(CommandLine &line, std::span<const Option> options, NameCase nameCase)
{
    while (line.AtOption()) {
        const std::string &argument = line.Take();
        if (Same(argument, "--help", nameCase))
            return Wish::help;
        if (Same(argument, "--version", nameCase))
            return Wish::version;
        const auto option = std::ranges::find_if(options, [&](const Option &candidate) {
            return IsWrittenAs(candidate, argument, nameCase);
        });
        if (option == options.end())
            return Error{"unknown option '" + Shown(argument) + "'"};
        if (const auto error = Apply(*option, argument, line))
            return *error;
    }
    return Wish::work;
}

} // namespace palmtools
