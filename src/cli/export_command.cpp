#include "cli/export_command.h"

#include "cli/form_sheet_export.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "exchange/sheet_writer.h"

using namespace Qt::StringLiterals;

namespace vellumo {

Exit ExportProject(const CommandLine &line, const Console &console)
{
    if (line.Has(Option::Csv) == line.Has(Option::FormSheet))
        return RefuseUse(console, u"Export as what? Please say --csv or --xlsform."_s);
    if (line.Has(Option::FormSheet) && !line.Has(Option::Output))
        return RefuseUse(console, u"A workbook needs a file: -o FILE.xlsx."_s);
    const QString target = line.Value(Option::Output, u"-"_s);
    if (const Exit checked = CheckOutput(target, line.inputs, console); checked != Exit::Fine)
        return checked;
    return ForInput(line, console, [&](const QString &input) -> Ending {
        if (line.Has(Option::FormSheet))
            return ExportFormSheet(input, target, line, console);
        const Result<Project> project = ReadProjectInput(input, console);
        if (!project)
            return Refuse(console, Exit::Unreadable, project.error());
        return Deliver(target, WriteSheet(*project), "exported"_L1, console);
    });
}

} // namespace vellumo
