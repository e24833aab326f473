#pragma once

#include <QStringList>

namespace vellumo {

// The texts of a project as they arrive on the handheld, which is by way of a script
// (docs/palm-formats.md, "How the texts of a project arrive"). A character that windows-1252 lacks
// never gets there; here it stands for itself, for those who take the form elsewhere.

/// A text that the script has as it was typed: title, column name, version.
QString ArrivingText(QStringView typed);

/// A text in free wording: question text, description.
QString ArrivingWording(QStringView typed);

/// The items of a question, which are more than were typed where one has a comma.
QStringList ArrivingItems(const QStringList &typed);

} // namespace vellumo
