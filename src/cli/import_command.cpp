#include "cli/import_command.h"

#include "cli/changed_project.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "cli/refusals.h"
#include "exchange/csv_text.h"
#include "exchange/sheet_import.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Result<SheetImport> Imported(const CommandLine &line, const Console &console)
{
    const QString input = line.inputs.first();
    const Result<QByteArray> bytes = ReadInput(input, sheetLimit, console);
    if (!bytes)
        return bytes.error();
    const Result<Sheet> sheet = ReadSheet(*bytes);
    if (!sheet)
        return Error{sheet.error().text, InputName(input), sheet.error().line};
    if (!line.Has(Option::Into))
        return ImportSheet(*sheet);
    const Result<Project> project = ReadProjectInput(line.Value(Option::Into), console);
    if (!project)
        return project.error();
    return AppendSheet(*project, *sheet);
}

QString Told(const SheetImport &import)
{
    const auto questions = [](qsizetype count) {
        return count == 1 ? u"1 question was "_s : u"%1 questions were "_s.arg(count);
    };
    QString told = questions(import.added) + u"imported."_s;
    if (import.leftOut > 0)
        told += u' ' + questions(import.leftOut) + u"left out."_s;
    return told;
}

Ending Import(const QString &input, const QString &target, const CommandLine &line,
              const Console &console)
{
    const Result<SheetImport> import = Imported(line, console);
    if (!import)
        return Refuse(console, Exit::Unreadable, import.error());
    if (!MayWrite(import->refusals, RowsAre::RowsOfTable, InputName(input), line, console))
        return Exit::NotPassed;
    const Ending ending =
        DeliverProject(import->project, InputName(input), target, "imported"_L1, console);
    return Said(ending, Told(*import),
                {{u"added"_s, import->added}, {u"leftOut"_s, import->leftOut}}, target, console);
}

} // namespace

Exit ImportProject(const CommandLine &line, const Console &console)
{
    const QString given = line.Value(Option::Into, u"-"_s);
    const QString target = line.Value(Option::Output, given);
    if (line.Has(Option::Into) && RefusedAsSecond(line.inputs.first(), given, console))
        return Exit::WrongUse;
    if (const Exit checked = CheckTarget(given, line, console); checked != Exit::Fine)
        return checked;
    if (const Exit checked = CheckIsNoInput(target, line.inputs, console); checked != Exit::Fine)
        return checked;
    return ForInput(line, console,
                    [&](const QString &input) { return Import(input, target, line, console); });
}

} // namespace vellumo
