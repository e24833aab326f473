#pragma once

#include "editing/clipboard_texts.h"
#include "model/clsDataSource.h"

namespace vellumo {

/// Appends copied questions under fresh Ids, each by the rules of the wizard; a column name that is
/// taken grows as that of a duplicate does. The last one added becomes current. Where there is no
/// place for all of them, none is added.
///
/// Gives what is refused, ready to show in one box; empty = nothing was.
QString PasteQuestions(clsDataSource &source, const QList<CopiedQuestion> &questions);

} // namespace vellumo
