#pragma once

#include "model/project.h"
#include "platform/result.h"

#include <QByteArray>

namespace vellumo {

/// The bytes of a project's file, by docs/project-file.md: XML in windows-1252 with CR LF, one
/// element a line, every value without the blanks at its ends and in a CDATA section. A value that
/// holds "]]>" is written as it stands, and the file cannot be read again. Line ends within values
/// are written as line feeds.
///
/// Fails at the first character that windows-1252 or XML does not have, and on a project whose file
/// would be larger than projectLimit.
Result<QByteArray> WriteProject(const Project &project);

} // namespace vellumo
