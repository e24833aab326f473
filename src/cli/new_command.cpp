#include "cli/new_command.h"

#include "cli/examples.h"
#include "cli/near_miss.h"
#include "cli/outputs.h"
#include "model/project_writer.h"
#include "platform/files.h"
#include "validation/form_rules.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Error NoExample(const QString &name)
{
    const QString meant = NearMiss(name, ExampleNames());
    const QString hint = meant.isEmpty() ? QString() : u" Did you mean '%1'?"_s.arg(meant);
    return {u"There is no example '%1'.%2 There are: %3."_s.arg(name, hint,
                                                                ExampleNames().join(", "_L1))};
}

/// The bytes of the project's file, or what is wrong with what was asked for.
Result<QByteArray> NewProject(const CommandLine &line)
{
    Project project;
    if (const QString example = line.Value(Option::From); line.Has(Option::From)) {
        if (!ExampleNames().contains(example))
            return NoExample(example);
        project = Example(example);
    }
    project.FormName = line.inputs.first();
    bool failed = false;
    QString message;
    ValidateAppName(project.FormName, failed, message);
    if (failed)
        return Error{u"'%1' cannot be its name. "_s.arg(line.inputs.first()) + message};
    return WriteProject(project); // names a character that no project can have
}

Ending WriteNew(const QString &target, const CommandLine &line, const Console &console)
{
    const Result<QByteArray> bytes = NewProject(line);
    if (!bytes)
        return RefuseUse(console, bytes.error().text);
    if (target != "-"_L1 && QFileInfo::exists(target) && !IsWrittenInto(target))
        return Refuse(console, Exit::NotWritten,
                      {u"There is something of this name, and it stays as it is."_s, target});
    return Deliver(target, *bytes, "new"_L1, console);
}

} // namespace

Exit WriteNewProject(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, u"-"_s);
    if (console.json && target == "-"_L1)
        return RefuseMixture(console);
    const Ending ending = WriteNew(target, line, console);
    if (ending.exit != Exit::WrongUse) // with which nothing was tried
        TellOfFile(ending, target, console);
    return ending.exit;
}

} // namespace vellumo
