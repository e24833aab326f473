#pragma once

#include "palmtools/common/bytes.h"
#include "palmtools/pilrc/form_object.h"

#include <cstdint>

namespace palmtools {

/// The code of an object's kind in the directory of its form.
std::uint8_t DirectoryKind(ObjectKind kind);

/// Bytes that AppendObject() adds; always even. Found without building anything.
std::uint64_t ObjectSize(const FormObject &object);

/// Appends the object as it lies in a form: docs/palm-formats.md, "The objects of a form".
void AppendObject(Bytes &bytes, const FormObject &object);

} // namespace palmtools
