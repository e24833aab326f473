#include "palmgen/create_pass.h"

#include "model/texts.h"
#include "palmgen/script_generator.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView creationError = "Error in Vellsheet Creation!"_L1;

/// The name becomes that of files; one with a folder in it would put them elsewhere.
bool IsPlainFileName(const QString &name)
{
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1 &&
           QFileInfo(name).fileName() == name;
}

CreateReport Fail(const CreateSurroundings &surroundings, const Error &error, CreateReport report)
{
    surroundings.tellFailure(creationError);
    report.outcome = error;
    return report;
}

CreateReport Fail(const CreateSurroundings &surroundings, const FileFault &fault,
                  CreateReport report)
{
    surroundings.tellFailure(fault.permissionDenied ? fault.description + "\r\n"_L1 + creationError
                                                    : creationError);
    report.outcome = Error{fault.description};
    return report;
}

} // namespace

CreateReport CreateVellsheet(const Project &project, const CreateSurroundings &surroundings)
{
    const BuildPlace &place = surroundings.place;
    const QString name = TrimBlanks(project.FormName).toString();
    if (!IsPlainFileName(name))
        return Fail(surroundings, Error{u"The form name '%1' is no file name"_s.arg(name)}, {});

    const Script script = GenerateScript(project, IdentifierDigits(surroundings.makeIdentifier()));
    const QString path = place.applicationFolder + QDir::separator() + name + ".rcp"_L1;
    if (const auto fault = WriteFile(path, script.bytes))
        return Fail(surroundings, *fault, {});
    if (!script.outcome)
        return Fail(surroundings, script.outcome.error(), {});

    const BuildReport built = Build(name, place);
    const CreateReport report = {.runs = built.runs};
    if (built.fault)
        return Fail(surroundings, *built.fault, report);

    const QString database = place.projectsFolder + name;
    surroundings.tellSuccess(
        database + ".Prc has been created. You may now install it onto your Palm handheld "
                   "(using the Palm Install Tool) to use with Vellumo Viewer."_L1);
    surroundings.open(database + ".prc"_L1);
    surroundings.open(place.projectsFolder);
    return report;
}
