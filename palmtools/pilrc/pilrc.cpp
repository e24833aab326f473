#include "palmtools/pilrc/pilrc.h"

#include "palmtools/common/arguments.h"
#include "palmtools/common/files.h"
#include "palmtools/common/tool_texts.h"
#include "palmtools/pilrc/compiler.h"
#include "palmtools/pilrc/pilrc_call.h"
#include "palmtools/pilrc/resource_file.h"

#include <exception>

namespace palmtools {
namespace {

constexpr ToolTexts texts = {
    .name = "pilrc",
    .usage = "usage: pilrc -ro [-q] [-V] [-I DIR]... [-o OUT] FILE [OUT]\n",
    .help = "Compiles the resource script FILE into the resource file OUT, else FILE.ro.\n"
            "\n"
            "  -ro        write one resource file (required)\n"
            "  -I DIR     a folder in which FILE is looked for as well; may be repeated\n"
            "  -o OUT     the resource file\n"
            "  -q         say nothing on standard output\n"
            "  -V         write messages as PATH(LINE): error : TEXT\n"
            "  --help     show this help\n"
            "  --version  show the version\n",
};

struct Script {
    std::string path;
    Bytes bytes;
};

std::string Joined(const std::string &folder, const std::string &file)
{
    const bool ends = !folder.empty() && (folder.back() == '/' || folder.back() == '\\');
    return folder + (ends ? "" : "/") + file;
}

/// Where the script is nowhere, the path as given is at fault and not the last one tried.
Result<Script> FindScript(const PilrcCall &call)
{
    auto asGiven = ReadFile(PathOf(call.script));
    if (asGiven)
        return Script{call.script, std::move(*asGiven)};
    for (const std::string &folder : call.folders) {
        const std::string path = Joined(folder, call.script);
        if (auto bytes = ReadFile(PathOf(path)))
            return Script{path, std::move(*bytes)};
    }
    return asGiven.error();
}

void List(const std::vector<Resource> &resources, std::ostream &out)
{
    for (const Resource &resource : resources) {
        out << ShownType(resource.type) << ' ' << resource.number << ": " << resource.bytes.size()
            << " bytes\n";
    }
}

std::optional<Error> WriteResourceFile(const std::string &path,
                                       const std::vector<Resource> &resources)
{
    const auto bytes = EncodeResourceFile(path, resources);
    if (!bytes)
        return bytes.error();
    return ReplaceFile(PathOf(path), *bytes);
}

int Fail(const Error &error, std::ostream &err)
{
    err << "pilrc: " << (error.file.empty() ? "" : error.file + " ") << error.text << '\n';
    return 1;
}

int Compile(const PilrcCall &call, std::ostream &out, std::ostream &err)
{
    const auto script = FindScript(call);
    if (!script)
        return Fail(script.error(), err);
    if (!call.quiet)
        out << script->path << '\n';

    const Compilation compilation = CompileScript(script->bytes);
    // Written at once, since a stream of errors has no buffer.
    std::string messages;
    for (const Diagnostic &diagnostic : compilation.diagnostics)
        messages += MessageOf(diagnostic, script->path, call.style);
    err << messages << MessageOfMore(compilation.moreWarnings);
    if (compilation.failed)
        return 1;
    if (!call.quiet)
        List(compilation.resources, out);

    if (const auto error = WriteResourceFile(call.output, compilation.resources))
        return Fail(*error, err);
    if (!call.quiet)
        out << call.output << '\n';
    return 0;
}

int Run(const std::vector<std::string> &arguments, std::ostream &out, std::ostream &err)
{
    if (arguments.empty()) {
        AnswerWish(Wish::help, texts, out);
        return 1;
    }
    const auto call = ReadPilrcCall(arguments);
    if (!call) {
        Fail(call.error(), err);
        err << texts.usage;
        return 1;
    }
    if (AnswerWish(call->wish, texts, out))
        return 0;
    return Compile(*call, out, err);
}

} // namespace

int RunPilrc(const std::vector<std::string> &arguments, std::ostream &out, std::ostream &err)
{
    try {
        return Run(arguments, out, err);
    } catch (const std::exception &failure) {
        return Fail({failure.what()}, err);
    }
}

} // namespace palmtools
