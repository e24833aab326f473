// A resource script: it is compiled or refused with a reason, and what comes out is a sound file.

#include "fuzz/require.h"
#include "palmtools/common/database.h"
#include "palmtools/pilrc/compiler.h"
#include "palmtools/pilrc/resource_file.h"

using namespace palmtools;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view script(reinterpret_cast<const char *>(data), size);
    const Compilation compilation = CompileScript(script);
    const auto &told = compilation.diagnostics;
    const bool lastIsError = !told.empty() && told.back().severity == Severity::error;
    Require(compilation.failed == lastIsError, "a refusal has its reason, and no other end has");
    Require(compilation.failed == compilation.resources.empty(), "resources come of success");
    for (const Diagnostic &diagnostic : told)
        Require(diagnostic.line >= 1 && !diagnostic.text.empty(), "a message has line and text");
    if (compilation.failed)
        return 0;

    const auto file = EncodeResourceFile("a.ro", compilation.resources);
    if (!file)
        return 0;
    const auto read = DecodeDatabase(*file);
    Require(read && read->size() == compilation.resources.size(), "the file has all resources");
    for (std::size_t i = 0; i < read->size(); ++i) {
        const Resource &made = compilation.resources[i];
        const ResourceView &found = (*read)[i];
        Require(found.type == made.type && found.number == made.number && found.bytes == made.bytes,
                "a resource is in the file as it was made");
    }
    return 0;
}
