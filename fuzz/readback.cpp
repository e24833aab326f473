// A database: it is read or refused with a reason, what is in it can be told, and it can be held
// against a project.

#include "fuzz/require.h"
#include "readback/database_check.h"
#include "readback/database_content.h"
#include "readback/projects.h"
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
    return 0;
}
