#include "cli/named_programs.h"

#include "platform/folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The option that names a program in the place of a tool.
struct NamedTool {
    QLatin1StringView tool;
    Option option;
};
constexpr NamedTool namedTools[] = {{"pilrc"_L1, Option::Compiler},
                                    {"build-prc"_L1, Option::Builder}};

bool HasFolder(const QString &program)
{
    return QDir::fromNativeSeparators(program).contains(u'/');
}

/// A tool runs in a folder of its own, so that the path has to be a whole one.
QString PathOf(const QString &program)
{
    if (HasFolder(program))
        return QFileInfo(program).absoluteFilePath();
    const QString found = QStandardPaths::findExecutable(program);
    return found.isEmpty() ? program : found;
}

} // namespace

bool NamesPrograms(const CommandLine &line)
{
    return std::ranges::any_of(namedTools,
                               [&line](const NamedTool &row) { return line.Has(row.option); });
}

ToolRun RunNamed(ToolCall call, const CommandLine &line)
{
    const ToolLimits limits = {{ApplicationFolder()}, line.TimeoutSeconds()};
    const auto *named = std::ranges::find(namedTools, call.name, &NamedTool::tool);
    if (named == std::end(namedTools) || !line.Has(named->option))
        return RunAndWait(call, limits);
    call.name = PathOf(line.Value(named->option));
    ToolRun run = RunAndWait(call, limits);
    if (run.end == ToolEnd::NotStarted)
        run.reason.prepend(call.name + (HasFolder(call.name) ? ": "_L1 : ", along PATH: "_L1));
    return run;
}

} // namespace vellumo
