#pragma once

#include "readback/byte_reader.h"
#include "readback/form.h"

namespace vellumo {

/// Takes an object of a form, from its first byte to the padding behind its last text. A number
/// that is no kind is a fault, and nothing is taken.
FormObject TakeObject(ByteReader &reader, ObjectKind kind);

} // namespace vellumo
