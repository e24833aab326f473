#include "palmtools/build_prc/build_prc.h"

#include "palmtools/build_prc/build_prc_call.h"
#include "palmtools/build_prc/database_builder.h"
#include "palmtools/common/arguments.h"
#include "palmtools/common/ascii.h"
#include "palmtools/common/files.h"
#include "palmtools/common/tool_texts.h"

#include <ctime>
#include <exception>
#include <utility>

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
    if (call.identity.name.empty())
        err << "build-prc: warning: the database name is empty\n";
    if (call.identity.creator.empty())
        err << "build-prc: warning: the creator is empty\n";
}

std::optional<Error> CheckEndings(const BuildPrcCall &call)
{
    if (!EndsIgnoringCase(call.output, ".prc"))
        return Error{"the name of a database must end in .prc", call.output};
    if (!EndsIgnoringCase(call.input, ".ro") && !EndsIgnoringCase(call.input, ".prc"))
        return Error{"the name of a resource file must end in .ro or .prc", call.input};
    return std::nullopt;
}

/// The database of a resource file; a fault of its resources is told as one of the file.
Result<Bytes> DatabaseOf(const DatabaseHeader &header, const std::string &path)
{
    const auto resourceFile = ReadFile(PathOf(path));
    if (!resourceFile)
        return resourceFile.error();
    auto resources = DecodeDatabase(*resourceFile);
    if (resources)
        resources = Sorted(std::move(*resources));
    if (!resources)
        return Error{resources.error().text, path};
    return EncodeDatabase(header, *resources);
}

int Build(const BuildPrcCall &call, std::ostream &err)
{
    if (const auto error = CheckEndings(call))
        return Fail(*error, err);
    const auto header = HeaderOf(call.identity, std::time(nullptr));
    if (!header)
        return Fail(header.error(), err);
    Warn(call, err);
    const auto database = DatabaseOf(*header, call.input);
    if (!database)
        return Fail(database.error(), err);
    if (const auto error = ReplaceFile(PathOf(call.output), *database))
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
