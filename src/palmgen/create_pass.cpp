#include "palmgen/create_pass.h"

#include "model/texts.h"
#include "palmgen/script_generator.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QLatin1StringView creationError = "Error in Vellsheet Creation!"_L1;

/// The name becomes that of files; one with a folder in it would put them elsewhere.
bool IsPlainFileName(const QString &name)
{
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1 &&
           QFileInfo(name).fileName() == name;
}

/// What the user is told: the platform's words only where permission was denied.
QString FailureMessage(const CreateReport &report)
{
    if (report.fileFault && report.fileFault->permissionDenied)
        return report.fileFault->description + "\r\n"_L1 + creationError;
    return creationError;
}

CreateReport WriteAndBuild(const Project &project, const QString &name,
                           const CreateSurroundings &surroundings)
{
    CreateReport report;
    if (!IsPlainFileName(name)) {
        report.projectFault = Error{u"The form name '%1' is no file name"_s.arg(name)};
        return report;
    }
    const BuildPlace &place = surroundings.place;
    const Script script = GenerateScript(project, IdentifierDigits(surroundings.makeIdentifier()));
    report.fileFault =
        WriteNewFile(place.applicationFolder + QDir::separator() + name + ".rcp"_L1, script.bytes);
    if (!script.outcome)
        report.projectFault = script.outcome.error();
    if (!report.IsComplete())
        return report;

    BuildReport built = Build(name, place);
    report.runs = std::move(built.runs);
    report.fileFault = std::move(built.fault);
    return report;
}

} // namespace

CreateReport CreateVellsheet(const Project &project, const CreateSurroundings &surroundings)
{
    const QString name = TrimBlanks(project.FormName).toString();
    const CreateReport report = WriteAndBuild(project, name, surroundings);
    if (!report.IsComplete()) {
        surroundings.tellFailure(FailureMessage(report));
        return report;
    }
    const QString folder = surroundings.place.projectsFolder;
    surroundings.tellSuccess(
        folder + name +
        ".Prc has been created. You may now install it onto your Palm handheld "
        "(using the Palm Install Tool) to use with Vellumo Viewer."_L1);
    surroundings.open(folder + name + ".prc"_L1);
    surroundings.open(folder);
    return report;
}

} // namespace vellumo
