#pragma once

#include <QString>

namespace vellumo {

/// A new globally unique identifier in registry form with upper-case digits:
/// {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}.
QString MakeIdentifier();

} // namespace vellumo
