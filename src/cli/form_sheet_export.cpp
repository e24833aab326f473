#include "cli/form_sheet_export.h"

#include "cli/inputs.h"
#include "cli/outputs.h"
#include "exchange/workbook.h"
#include "platform/work_folder.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// A form of the most questions and items has a tenth of it.
constexpr FileLimit workbookLimit = {64 << 20, "workbook"_L1};

Notice NoticeOf(const SheetLoss &loss, const QString &inputName, bool isFinding)
{
    return {.kind = isFinding ? "finding"_L1 : "warning"_L1,
            .code = loss.code,
            .text = loss.text,
            .shown = Visible((isFinding ? ""_L1 : "warning: "_L1) + loss.text),
            .file = inputName,
            .step = StepOf(loss.place),
            .question = loss.place.question,
            .field = loss.place.field,
            .advice = !isFinding};
}

bool MayWrite(const QList<SheetLoss> &losses, const QString &inputName, const CommandLine &line,
              const Console &console)
{
    const bool lossy = line.Has(Option::Lossy);
    for (const SheetLoss &loss : losses)
        console.Complain(NoticeOf(loss, inputName, loss.changes && !lossy));
    return lossy || std::ranges::none_of(losses, &SheetLoss::changes);
}

/// The library writes to files alone.
Result<QByteArray> BytesOf(const FormSheet &sheet)
{
    WorkFolder::RemoveLeft();
    const WorkFolder folder;
    if (!folder.state())
        return folder.state().error();
    const QString path = folder.path() + "/form.xlsx"_L1;
    if (const Outcome written = WriteWorkbook(sheet.tables, path); !written)
        return written.error();
    return ReadWholeFile(path, workbookLimit);
}

} // namespace

Ending ExportFormSheet(const QString &input, const QString &target, const CommandLine &line,
                       const Console &console)
{
    const Result<Project> project = ReadProjectInput(input, console);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    const Result<FormSheet> sheet = MakeFormSheet(*project);
    if (!sheet)
        return Refuse(console, Exit::NotPassed, {sheet.error().text, InputName(input)});
    if (!MayWrite(sheet->losses, InputName(input), line, console))
        return Refuse(console, Exit::NotPassed,
                      {u"Nothing was written. With --lossy it will be."_s, InputName(input)});
    const Result<QByteArray> bytes = BytesOf(*sheet);
    if (!bytes)
        return Refuse(console, Exit::NotWritten, {bytes.error().text, InputName(input)});
    return Deliver(target, *bytes, "exported"_L1, console);
}

} // namespace vellumo
