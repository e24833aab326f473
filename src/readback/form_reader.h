#pragma once

#include "platform/result.h"
#include "readback/form.h"

namespace vellumo {

/// Decodes a form ('tFRM'; docs/palm-formats.md, "Forms") to its last byte. Fails, with words that
/// go on after "... is damaged: ", where the directory, an object, its padding or the end do not
/// add up, or a byte that is always zero is not. Numbers and flags are taken as they are. Any bytes
/// may be given.
Result<Form> ReadForm(const QByteArray &resource);

} // namespace vellumo
