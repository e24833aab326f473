#pragma once

#include "model/project.h"

namespace vellumo {

/// The names of the projects that are built in to start from, sorted.
QStringList ExampleNames();

/// The project of one of these names.
Project Example(const QString &name);

} // namespace vellumo
