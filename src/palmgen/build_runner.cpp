#include "palmgen/build_runner.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The files of one build. A separator stands before the database's name although the projects
/// folder ends with one; file systems take two for one.
struct Files {
    QString resourceName, resources, script, database;

    Files(const QString &name, const BuildPlace &place)
        : resourceName(name + ".ro"_L1),
          resources(place.applicationFolder + QDir::separator() + resourceName),
          script(place.applicationFolder + QDir::separator() + name + ".rcp"_L1),
          database(place.projectsFolder + QDir::separator() + name + ".prc"_L1)
    {}
};

ToolCall CompilerCall(const Files &files, const BuildPlace &place)
{
    return {
        .name = u"pilrc"_s,
        .arguments = {u"-ro"_s, u"-I"_s, place.applicationFolder, files.script},
        .workingFolder = place.applicationFolder,
        .commandLine = uR"(pilrc -ro -I "%1" "%2")"_s.arg(place.applicationFolder, files.script),
    };
}

ToolCall BuilderCall(const QString &name, const Files &files, const BuildPlace &place)
{
    return {
        .name = u"build-prc"_s,
        .arguments = {u"-t"_s, u"kelp"_s, u"--hidden"_s, u"--no-check-resources"_s, files.database,
                      name, u"Wmpt"_s, files.resourceName},
        .workingFolder = place.applicationFolder,
        .commandLine = uR"(build-prc -t kelp --hidden --no-check-resources "%1" %2 Wmpt %3)"_s.arg(
            files.database, name, files.resourceName),
    };
}

void RunAndReport(const ToolCall &call, const BuildPlace &place, BuildReport &report)
{
    const ToolRun run = place.runTool(call);
    if (!run.started)
        place.reportNotStarted(
            u"Error starting task %1\r\n%2"_s.arg(run.commandLine, run.whyNotStarted));
    report.runs.append(run);
}

std::optional<FileFault> DeleteBoth(const QString &first, const QString &second)
{
    const std::optional<FileFault> fault = RemoveFile(first);
    return fault ? fault : RemoveFile(second);
}

} // namespace

BuildReport Build(const QString &name, const BuildPlace &place)
{
    const Files files(name, place);
    BuildReport report;
    report.fault = DeleteBoth(files.resources, files.database);
    if (report.fault)
        return report;
    RunAndReport(CompilerCall(files, place), place, report);
    RunAndReport(BuilderCall(name, files, place), place, report);
    report.fault = DeleteBoth(files.resources, files.script);
    return report;
}

} // namespace vellumo
