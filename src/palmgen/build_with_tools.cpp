#include "palmgen/build_with_tools.h"

#include "platform/files.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The files of one build. A separator stands before the database's name although its folder ends
/// with one; file systems take two for one.
struct Files {
    QString resourceName, resources, script, database;

    Files(const QString &name, const BuildFolders &folders)
        : resourceName(name + ".ro"_L1),
          resources(folders.work + QDir::separator() + resourceName),
          script(folders.work + QDir::separator() + name + ".rcp"_L1),
          database(folders.databases + QDir::separator() + name + ".prc"_L1)
    {}
};

ToolCall CompilerCall(const Files &files, const QString &folder)
{
    return {
        .name = u"pilrc"_s,
        .arguments = {u"-ro"_s, u"-I"_s, folder, files.script},
        .workingFolder = folder,
        .commandLine = uR"(pilrc -ro -I "%1" "%2")"_s.arg(folder, files.script),
    };
}

ToolCall BuilderCall(const QString &name, const Files &files, const QString &folder)
{
    return {
        .name = u"build-prc"_s,
        .arguments = {u"-t"_s, u"kelp"_s, u"--hidden"_s, u"--no-check-resources"_s, files.database,
                      name, u"Wmpt"_s, files.resourceName},
        .workingFolder = folder,
        .commandLine = uR"(build-prc -t kelp --hidden --no-check-resources "%1" %2 Wmpt %3)"_s.arg(
            files.database, name, files.resourceName),
    };
}

Outcome DeleteBoth(const QString &first, const QString &second)
{
    const Outcome deleted = RemoveFile(first);
    return deleted ? RemoveFile(second) : deleted;
}

} // namespace

Builder BuildWithTools(RunTool runTool)
{
    return [runTool = std::move(runTool)](const Script &script, const QString &name,
                                          const BuildFolders &folders) -> BuildReport {
        const Files files(name, folders);
        if (const Outcome written = WriteNewFile(files.script, script.bytes); !written)
            return {.outcome = written};
        if (!script.outcome)
            return {};
        if (const Outcome deleted = DeleteBoth(files.resources, files.database); !deleted)
            return {.outcome = deleted};
        const ToolRun compiled = runTool(CompilerCall(files, folders.work));
        const ToolRun built = runTool(BuilderCall(name, files, folders.work));
        return {.runs = {compiled, built}, .outcome = DeleteBoth(files.resources, files.script)};
    };
}

} // namespace vellumo
