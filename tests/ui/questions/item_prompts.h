#pragma once

#include <QString>

namespace vellumo {

/// What the wizard asks for an item, and the property dialog.
inline const QString anItem = QStringLiteral("Please add an item to the List.");
inline const QString theItem = QStringLiteral("Please add the item to the List.");

} // namespace vellumo
