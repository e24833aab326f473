#pragma once

#include <QStringList>

namespace vellumo {

// Names that come with the program for pulldown lists, in the order in which they are offered.

/// The states of the United States and the District of Columbia.
const QStringList &StateNames();

const QStringList &CountryNames();

} // namespace vellumo
