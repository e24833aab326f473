#pragma once

#include "exchange/refusal.h"
#include "exchange/sheet.h"
#include "model/project.h"

namespace vellumo {

/// What became of a sheet.
struct SheetImport {
    Project project = {};
    qsizetype added = 0;          ///< questions
    qsizetype leftOut = 0;        ///< questions, because of what was refused
    QList<Refusal> refusals = {}; ///< of everything that was left out, in the order of the sheet
};

/// The project of a sheet, with the form, the Ids and the numbers that it tells of, each question
/// by the rules of the wizard. Where it tells none, they are those of a new project.
SheetImport ImportSheet(const Sheet &sheet);

/// The project with the questions of a sheet behind its own, each by the rules of the wizard, under
/// fresh Ids; a column name that is taken grows as that of a duplicate does. What the sheet says of
/// its form is not looked at.
SheetImport AppendSheet(const Project &project, const Sheet &sheet);

} // namespace vellumo
