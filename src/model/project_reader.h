#pragma once

#include "model/project.h"
#include "platform/result.h"

#include <QByteArray>

namespace vellumo {

/// The project that a file's bytes hold, by docs/project-file.md; the cursor stands on its first
/// question.
///
/// The elements may stand in any order; of one that stands twice the first counts, and one that is
/// not known is passed over. Fails, with the line, where the bytes are no well-formed XML, the
/// company tag is missing or another's, there is a document type, an element is missing, or a
/// number is no 32-bit decimal.
Result<Project> ReadProject(const QByteArray &bytes);

} // namespace vellumo
