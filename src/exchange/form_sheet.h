#pragma once

#include "model/project.h"
#include "model/texts.h"

#include <QStringList>

namespace vellumo {

/// A sheet of a workbook: a row of headings, and under it rows of as many cells.
struct SheetTable {
    QString name;
    QStringList headings;
    QList<QStringList> rows = {};
};

/// Something of a project that a form sheet holds otherwise, or not at all.
struct SheetLoss {
    QLatin1StringView code; ///< for machines; never changes
    TextPlace place;
    QString text;         ///< a sentence for a person
    bool changes = false; ///< a question's own text or name became another one
};

/// A form as the form tools of phones take it (docs/xlsform.md).
struct FormSheet {
    QList<SheetTable> tables; ///< survey, choices and settings
    QList<SheetLoss> losses;
};

/// The form sheet of a project. Fails for a question of an unknown type, and for one without the
/// items that its type needs.
Result<FormSheet> MakeFormSheet(const Project &project);

} // namespace vellumo
