#include "palmtools/pilrc/pilrc_call.h"

#include "palmtools/common/arguments.h"
#include "palmtools/common/ascii.h"
#include "palmtools/common/files.h"

#include <cstddef>
#include <optional>

namespace palmtools {
namespace {

/// What the options and the plain arguments say, before it is judged.
struct Told {
    PilrcCall call = {};
    bool asksForOneFile = false;
    std::vector<std::string> outputs = {};
};

Result<Wish> ReadOptionsInto(Told &told, CommandLine &line)
{
    using Text = const std::string &;
    PilrcCall &call = told.call;
    const Option options[] = {
        {"-ro", "", false, [&](Text) { told.asksForOneFile = true; }},
        {"-I", "", true, [&](Text folder) { call.folders.push_back(folder); }},
        {"-q", "", false, [&](Text) { call.quiet = true; }},
        {"-V", "", false, [&](Text) { call.style = MessageStyle::microsoft; }},
        {"-o", "", true, [&](Text path) { told.outputs.push_back(path); }},
    };
    return ReadOptions(line, options, NameCase::ignored);
}

std::optional<Error> TakePlainArguments(Told &told, CommandLine &line)
{
    if (!told.asksForOneFile)
        return Error{"option '-ro' is missing; resources are written to one file only"};
    if (line.AtEnd())
        return Error{"the script is missing"};
    told.call.script = line.Take();
    if (!line.AtEnd())
        told.outputs.push_back(line.Take());
    if (!line.AtEnd() || told.outputs.size() > 1)
        return Error{"too many arguments"};
    return std::nullopt;
}

} // namespace

Result<PilrcCall> ReadPilrcCall(const std::vector<std::string> &arguments)
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
    const std::string asked = told.outputs.empty() ? "." : told.outputs.front();
    told.call.output = ResourceFileOf(told.call.script, asked);
    return told.call;
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
    const bool isWhole = name.find('.') != name.npos || IsWrittenInto(PathOf(asked));
    return std::string(asked) + (isWhole ? "" : ".ro");
}

} // namespace palmtools
