#include "palmgen/create_pass.h"

#include "model/texts.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The name becomes that of files; one with a folder in it would put them elsewhere.
bool IsPlainFileName(const QString &name)
{
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1 &&
           QFileInfo(name).fileName() == name;
}

} // namespace

CreateReport MakeDatabase(const Project &project, const CreatePlace &place,
                          const QString &identifier)
{
    CreateReport report = {.name = TrimBlanks(project.FormName).toString()};
    report.database = place.folders.databases + report.name + ".prc"_L1;
    const auto refused = [&report](CreateEnd end, const Error &error) {
        report.end = end;
        report.error = error;
        return report;
    };
    if (!IsPlainFileName(report.name))
        return refused(CreateEnd::ProjectRefused,
                       {u"The form name '%1' is no file name"_s.arg(report.name)});

    const Script script = GenerateScript(project, IdentifierDigits(identifier));
    BuildReport built = place.build(script, report.name, place.folders);
    report.runs = built.runs;
    report.bytes = std::move(built.database);
    if (!built.outcome)
        return refused(CreateEnd::FileRefused, built.outcome.error());
    if (!script.outcome)
        return refused(CreateEnd::ProjectRefused, script.outcome.error());
    if (!built.made)
        return refused(CreateEnd::BuildFailed, built.made.error());
    return report;
}

} // namespace vellumo
