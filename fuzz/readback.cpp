// A database: it is read or refused with a reason, what is in it can be told, it can be held
// against a project, and the project that is recovered from it can be stored.

#include "fuzz/require.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "readback/database_check.h"
#include "readback/database_content.h"
#include "readback/projects.h"
#include "readback/recovered_project.h"
#include "readback/soundness_check.h"
#include "readback/summary.h"

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Project text = TextProject();
    static const Project tenTypes = TenTypesProject();
    const auto database = ReadDatabase(BytesOf(data, size));
    if (!database) {
        Require(!database.error().text.isEmpty(), "a refusal has its reason");
        return 0;
    }
    Require(Summarize(*database).titles.size() <= database->resources.size(),
            "a title belongs to a form");
    const DatabaseContent content = DecodeDatabase(*database);
    Require(content.damages.size() <= database->resources.size(), "a resource is damaged once");
    for (const Project *project : {&text, &tenTypes})
        for (const Finding &finding : CheckDatabase(*database, *project))
            Require(!finding.text.isEmpty(), "a finding has its text");
    for (const Finding &finding : CheckSoundness(*database))
        Require(!finding.text.isEmpty(), "a finding has its text");
    // Only its size can keep a project from being written.
    if (const auto file = WriteProject(RecoverProject(*database)))
        Require(bool(ReadProject(*file)), "what was recovered is read again");
    return 0;
}
