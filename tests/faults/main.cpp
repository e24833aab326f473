// faults PROGRAMS CARELESS DATA EXAMPLES SCENARIO [--all]: runs a command again and again, each
// time with another of its system calls that work with files struck by a fault, and says what was
// not whole afterwards. Exit status 0: nothing; 1: something; 77: no process can be traced here.

#include "faults/judge.h"

#include "faults/content.h"

#include <algorithm>
#include <exception>
#include <iostream>

namespace faults {
namespace {

constexpr std::size_t mostRuns = 400; // of a scenario, unless all are asked for

constexpr struct {
    Fault fault;
    const char *name;
} kinds[] = {
    {Fault::Kill, "killed before"},  {Fault::Terminate, "SIGTERM before"},
    {Fault::NoSpace, "ENOSPC from"}, {Fault::InputOutput, "EIO from"},
    {Fault::Half, "half of"},
};

struct Point {
    Strike strike;
    std::string what;
};

bool Fits(Fault fault, Act act)
{
    const bool moves = act == Act::Read || act == Act::Write;
    return fault == Fault::Half ? moves : fault != Fault::NoSpace || act != Act::Read;
}

std::vector<Point> PointsOf(const std::vector<CountedCall> &calls)
{
    std::vector<Point> points;
    for (const auto &[fault, name] : kinds) {
        for (std::size_t i = 0; i < calls.size(); ++i) {
            const FileCall &call = *calls[i].call;
            if (Fits(fault, call.act))
                points.push_back({{fault, i + 1},
                                  std::string(name) + " call " + std::to_string(i + 1) + ", " +
                                      call.name + " of " + calls[i].file.filename().string()});
        }
    }
    return points;
}

std::vector<Point> Sample(const std::vector<Point> &points, std::size_t most)
{
    if (points.size() <= most)
        return points;
    std::vector<Point> sample;
    for (std::size_t i = 0; i < most; ++i)
        sample.push_back(points[i * points.size() / most]);
    return sample;
}

std::vector<std::string> Try(const Scenario &scenario, const Judge &judge, const Point &point)
{
    const Sandbox sandbox(scenario);
    const TracedRun run = sandbox.Run(scenario, point.strike);
    if (!run.struck)
        return {"it ended before, with wait status " + std::to_string(run.status) + ": " +
                run.messages};
    auto faults = judge.FaultsOf(sandbox, run);
    if (run.endedByUs)
        std::ranges::copy(judge.FaultsOfNext(sandbox, sandbox.Run(scenario, {})),
                          std::back_inserter(faults));
    return faults;
}

std::size_t Report(const Scenario &scenario, const std::string &what,
                   const std::vector<std::string> &faults)
{
    for (const std::string &fault : faults)
        std::cout << scenario.name << ": " << what << ": " << fault << '\n';
    return faults.empty() ? 0 : 1;
}

/// The number of runs that were not as they should be.
std::size_t TryAll(const Scenario &scenario, std::size_t most)
{
    const Sandbox sandbox(scenario);
    const TracedRun whole = sandbox.Run(scenario, {});
    const Judge judge(scenario, ContentOf(sandbox.Work() / scenario.target).value_or(""));
    std::size_t bad = Report(scenario, "nothing fails", judge.FaultsOf(sandbox, whole));
    if (whole.status != 0)
        bad += Report(scenario, "nothing fails", {"it does not succeed: " + whole.messages});

    const auto points = PointsOf(whole.calls);
    const auto sample = Sample(points, most);
    for (const Point &point : sample)
        bad += Report(scenario, point.what, Try(scenario, judge, point));
    std::cout << scenario.name << ": " << whole.calls.size() << " calls work with files; tried "
              << sample.size() << " of " << points.size() << " faults, " << bad << " not borne\n";
    return bad;
}

int Run(const std::vector<std::string> &arguments)
{
    if (arguments.size() < 5) {
        std::cerr << "usage: faults PROGRAMS CARELESS DATA EXAMPLES SCENARIO [--all]\n";
        return 2;
    }
    if (const std::string reason = WhyNoTracing(); !reason.empty()) {
        std::cout << "Skipped: " << reason << '\n';
        return 77;
    }
    const bool all = arguments.back() == "--all";
    const auto place = [&](std::size_t i) { return std::filesystem::absolute(arguments[i]); };
    const auto scenarios = Scenarios({place(0), place(1), place(2), place(3)});
    const auto named = std::ranges::find(scenarios, arguments[4], &Scenario::name);
    if (named == scenarios.end()) {
        std::cerr << "faults: there is no scenario " << arguments[4] << '\n';
        return 2;
    }
    return TryAll(*named, all ? SIZE_MAX : mostRuns) == 0 ? 0 : 1;
}

} // namespace
} // namespace faults

int main(int argc, char *argv[])
{
    try {
        return faults::Run({argv + 1, argv + argc});
    } catch (const std::exception &failure) {
        std::cerr << "faults: " << failure.what() << '\n';
        return 2;
    }
}
