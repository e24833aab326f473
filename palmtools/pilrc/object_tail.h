#pragma once

#include "palmtools/common/bytes.h"
#include "palmtools/pilrc/form_object.h"

#include <cstdint>

namespace palmtools {

/// What follows the part of an object that has a fixed size.
struct ObjectTail {
    /// Bytes that append() adds, found without building anything.
    std::uint64_t (*size)(const FormObject &object);
    void (*append)(Bytes &bytes, const FormObject &object);
};

extern const ObjectTail noTail;
extern const ObjectTail textTail;
extern const ObjectTail itemsTail; ///< of a list
extern const ObjectTail cellsTail; ///< of a table: its columns, rows and cells

} // namespace palmtools
