// A project's file on its way to a database and back: where the review passes and the script is
// compiled, the database agrees with the project.

#include "fuzz/require.h"
#include "model/project_reader.h"
#include "readback/database_check.h"
#include "support/in_process.h"
#include "validation/project_review.h"

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    auto project = ReadProject(BytesOf(data, size));
    if (!project || !ReviewProject(*project).Passed())
        return 0;
    const auto bytes = MakeInProcess(*project);
    if (!bytes)
        return 0;
    const auto database = ReadDatabase(*bytes);
    Require(bool(database), "the database can be read back");
    const auto findings = CheckDatabase(*database, *project);
    for (const Finding &finding : findings)
        std::fprintf(stderr, "%s\n", qPrintable(finding.text));
    Require(findings.isEmpty(), "it agrees with its project");
    return 0;
}
