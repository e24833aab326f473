#pragma once

#include "model/project.h"

#include <QByteArray>

namespace vellumo {

/// A project as a table for spreadsheets, by docs/csv.md: UTF-8 with a byte order mark, cells apart
/// by commas. Nothing of what the project's file has is lost.
QByteArray WriteSheet(const Project &project);

} // namespace vellumo
