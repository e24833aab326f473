#include "palmtools/build_prc/build_prc.h"

#include "palmtools/build_prc/build_prc_call.h"
#include "palmtools/build_prc/database_name.h"
#include "palmtools/build_prc/palm_time.h"
#include "palmtools/common/ascii.h"
#include "palmtools/common/database.h"
#include "palmtools/common/files.h"
#include "palmtools/common/shown.h"
#include "palmtools/common/tool_texts.h"

#include <ctime>
#include <exception>

namespace palmtools {
namespace {

constexpr ToolTexts texts = {
    .name = "build-prc",
    .usage = "usage: build-prc [-t TYPE] [--hidden] OUT.prc NAME CREATOR FILE.ro\n"
             "       build-prc [-t TYPE] [--hidden] -o OUT.prc -n NAME -c CREATOR FILE.ro\n",
    .help = "Builds the database OUT.prc for the handheld from the resource file FILE.ro.\n"
            "\n"
            "  -t, --type TYPE        type of the database, four bytes; appl if not given\n"
            "  -c, --creator CREATOR  its creator, four bytes\n"
            "  -n, --name NAME        its name, at most 31 bytes\n"
            "  -o, --output OUT.prc   where it goes\n"
            "  --hidden               hide it in the handheld's launcher\n"
            "  --no-check-resources   accepted; resources are never checked\n"
            "  --no-check-header      do not warn about an empty name or creator\n"
            "  --no-check             both of these\n"
            "  --help                 show this help\n"
            "  --version              show the version\n",
};

int Fail(const Error &error, std::ostream &err)
{
    err << (error.file.empty() ? "build-prc" : error.file) << ": " << error.text << '\n';
    return 1;
}

void Warn(const BuildPrcCall &call, std::ostream &err)
{
    if (!call.warnsAboutHeader)
        return;
    if (call.name.empty())
        err << "build-prc: warning: the database name is empty\n";
    if (call.creator.empty())
        err << "build-prc: warning: the creator is empty\n";
}

std::optional<Error> CheckArguments(const BuildPrcCall &call)
{
    if (!EndsIgnoringCase(call.output, ".prc"))
        return Error{"the name of a database must end in .prc", call.output};
    if (!EndsIgnoringCase(call.input, ".ro") && !EndsIgnoringCase(call.input, ".prc"))
        return Error{"the name of a resource file must end in .ro or .prc", call.input};
    if (call.type.size() != 4)
        return Error{"the type '" + Shown(call.type) + "' is not 4 bytes long"};
    if (!call.creator.empty() && call.creator.size() != 4)
        return Error{"the creator '" + Shown(call.creator) + "' is not 4 bytes long"};
    return std::nullopt;
}

Result<Bytes> DatabaseOf(const BuildPrcCall &call, const std::string &name,
                         std::string_view resourceFile)
{
    const DatabaseHeader header{.name = name,
                                .hidden = call.hidden,
                                .time = PalmTimeOf(std::time(nullptr)),
                                .type = FourBytesOf(call.type),
                                .creator = FourBytesOf(call.creator)};
    auto resources = DecodeDatabase(resourceFile);
    if (resources)
        resources = Sorted(std::move(*resources));
    if (!resources)
        return Error{resources.error().text, call.input};
    return EncodeDatabase(header, *resources);
}

int Build(const BuildPrcCall &call, std::ostream &err)
{
    if (const auto error = CheckArguments(call))
        return Fail(*error, err);
    const auto name = DatabaseNameOf(call.name);
    if (!name)
        return Fail(name.error(), err);
    Warn(call, err);
    const auto resourceFile = ReadFile(call.input);
    if (!resourceFile)
        return Fail(resourceFile.error(), err);
    const auto database = DatabaseOf(call, *name, *resourceFile);
    if (!database)
        return Fail(database.error(), err);
    if (const auto error = ReplaceFile(call.output, *database))
        return Fail(*error, err);
    return 0;
}

int Run(const std::vector<std::string> &arguments, std::ostream &out, std::ostream &err)
{
    const auto call = ReadBuildPrcCall(arguments);
    if (!call) {
        Fail(call.error(), err);
        err << texts.usage;
        return 1;
    }
    if (AnswerWish(call->wish, texts, out))
        return 0;
    return Build(*call, err);
}

} // namespace

int RunBuildPrc(const std::vector<std::string> &arguments, std::ostream &out, std::ostream &err)
{
    try {
        return Run(arguments, out, err);
    } catch (const std::exception &failure) {
        return Fail({failure.what()}, err);
    }
}

} // namespace palmtools
