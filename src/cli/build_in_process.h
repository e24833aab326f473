#pragma once

#include "palmgen/builder.h"

namespace vellumo {

/// The builder that compiles and packages in this process, as pilrc and build-prc do it: the bytes
/// are the same. It uses no files; the report has the database.
BuildReport BuildInProcess(const Script &script, const QString &name, const BuildFolders &folders);

} // namespace vellumo
