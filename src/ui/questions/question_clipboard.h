#pragma once

#include "ui/common/project_document.h"

namespace vellumo {

/// Lays the current question, which there must be, into the clipboard: whole for a designer, and as
/// a table for everything else.
void CopyQuestion(const clsDataSource &source);

/// Appends what the clipboard has of questions, in one change. Gives what was refused, ready to
/// show in one box; empty = nothing was.
QString PasteFromClipboard(ProjectDocument &document);

} // namespace vellumo
