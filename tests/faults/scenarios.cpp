#include "faults/scenarios.h"

#include "faults/content.h"

#include <algorithm>
#include <iterator>

namespace faults {
namespace {

constexpr std::size_t timesStart = 36, timesSize = 8; // of a database

Scenario WithOld(Scenario scenario)
{
    scenario.name += "_over_old";
    scenario.files.push_back({scenario.target, "what stood here before\n"});
    return scenario;
}

/// Writers with a fault each, but for the last, for a test of the judge.
std::vector<Scenario> CarelessScenarios(const Places &places)
{
    std::vector<Scenario> all;
    for (const std::string how : {"in_place", "unsynced", "deaf", "untidy", "silent", "careful"}) {
        const Scenario scenario = {
            .name = how, .words = {places.careless.string(), how, "a"}, .target = "a"};
        all.push_back(WithOld(scenario));
        all.back().name = how;
    }
    return all;
}

Scenario Create(const std::string &vellumo, const std::string &project)
{
    return {.name = "create",
            .words = {vellumo, "create", "--guid", "0123456789ABCDEF0123456789ABCDEF", "-o", ".",
                      "project.vmp"},
            .files = {{"project.vmp", project}},
            .target = "SiteVisit.prc",
            .freeStart = timesStart,
            .freeSize = timesSize};
}

std::vector<Scenario> RealScenarios(const Places &places)
{
    const auto program = [&](const char *name) { return (places.programs / name).string(); };
    const std::string vellumo = program("vellumo");
    // Not as vellumo writes it, so that old and new differ.
    const std::string project =
        ContentOf(places.examples / "SiteVisit.vmp").value() + "<!-- by somebody's own hand -->\n";
    const std::string script = ContentOf(places.data / "palm/tentypes.rcp").value();
    const std::string resources = ContentOf(places.data / "palm/tentypes.ro").value();

    const Scenario create = Create(vellumo, project);
    const Scenario compile = {.name = "pilrc",
                              .words = {program("pilrc"), "-ro", "a.rcp"},
                              .files = {{"a.rcp", script}},
                              .target = "a.ro"};
    const Scenario build = {.name = "build_prc",
                            .words = {program("build-prc"), "a.prc", "name", "Wmpt", "a.ro"},
                            .files = {{"a.ro", resources}},
                            .target = "a.prc",
                            .freeStart = timesStart,
                            .freeSize = timesSize};
    const Scenario rewriteElsewhere = {.name = "rewrite_elsewhere",
                                       .words = {vellumo, "rewrite", "-o", "b.vmp", "a.vmp"},
                                       .files = {{"a.vmp", project}},
                                       .target = "b.vmp"};
    return {
        {.name = "rewrite",
         .words = {vellumo, "rewrite", "a.vmp"},
         .files = {{"a.vmp", project}},
         .target = "a.vmp"},
        rewriteElsewhere,
        WithOld(rewriteElsewhere),
        create,
        WithOld(create),
        compile,
        WithOld(compile),
        build,
        WithOld(build),
    };
}

} // namespace

std::vector<Scenario> Scenarios(const Places &places)
{
    auto all = RealScenarios(places);
    std::ranges::copy(CarelessScenarios(places), std::back_inserter(all));
    return all;
}

} // namespace faults
