#include "palmtools/build_prc/build_prc_call.h"

#include <optional>

namespace palmtools {
namespace {

/// What the options say, before the plain arguments are dealt out.
struct Told {
    BuildPrcCall call = {};
    std::optional<std::string> output = {}, name = {}, creator = {};
};

Result<Wish> ReadOptionsInto(Told &told, CommandLine &line)
{
    using Text = const std::string &;
    BuildPrcCall &call = told.call;
    const Option options[] = {
        {"-t", "--type", true, [&](Text type) { call.identity.type = type; }},
        {"-c", "--creator", true, [&](Text creator) { told.creator = creator; }},
        {"-n", "--name", true, [&](Text name) { told.name = name; }},
        {"-o", "--output", true, [&](Text path) { told.output = path; }},
        {"", "--hidden", false, [&](Text) { call.identity.hidden = true; }},
        {"", "--no-check-resources", false, [](Text) {}},
        {"", "--no-check-header", false, [&](Text) { call.warnsAboutHeader = false; }},
        {"", "--no-check", false, [&](Text) { call.warnsAboutHeader = false; }},
    };
    return ReadOptions(line, options, NameCase::counts);
}

std::optional<Error> TakeFromOptions(Told &told)
{
    if (!told.output || !told.name || !told.creator)
        return Error{"options -o, -n and -c go together"};
    told.call.output = *told.output;
    told.call.identity.name = *told.name;
    told.call.identity.creator = *told.creator;
    return std::nullopt;
}

std::optional<Error> TakeFromLine(Told &told, CommandLine &line)
{
    for (std::string *place :
         {&told.call.output, &told.call.identity.name, &told.call.identity.creator}) {
        if (line.AtEnd())
            return Error{"OUT, NAME, CREATOR and FILE.ro are required"};
        *place = line.Take();
    }
    return std::nullopt;
}

std::optional<Error> TakePlainArguments(Told &told, CommandLine &line)
{
    const bool byOptions = told.output || told.name || told.creator;
    if (auto error = byOptions ? TakeFromOptions(told) : TakeFromLine(told, line))
        return error;
    if (line.AtEnd())
        return Error{"the resource file is missing"};
    told.call.input = line.Take();
    if (!line.AtEnd())
        return Error{"too many arguments"};
    return std::nullopt;
}

} // namespace

Result<BuildPrcCall> ReadBuildPrcCall(const std::vector<std::string> &arguments)
{
    CommandLine line(arguments);
    Told told;
    const auto wish = ReadOptionsInto(told, line);
    if (!wish)
        return wish.error();
    told.call.wish = *wish;
    if (*wish != Wish::work)
        return told.call;
    if (const auto error = TakePlainArguments(told, line))
        return *error;
    return told.call;
}

} // namespace palmtools
