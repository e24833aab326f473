#pragma once

#include "palmtools/common/record.h"
#include "palmtools/pilrc/form_object.h"
#include "palmtools/pilrc/object_tail.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace palmtools {

/// A value of an object and the offset at which it lies in it.
struct ObjectPart {
    std::uint8_t offset;
    void (*put)(Record &record, std::size_t offset, const FormObject &object);
};

/// How the objects of a kind lie in a form: docs/palm-formats.md, "The objects of a form".
struct ObjectLayout {
    ObjectKind kind;
    std::uint8_t directoryKind;        ///< the code of the kind in the directory of a form
    std::uint8_t fixedSize;            ///< bytes in front of the tail; what no part covers is zero
    std::span<const ObjectPart> parts; ///< of the fixed size
    const ObjectTail &tail;
};

const ObjectLayout &LayoutOf(ObjectKind kind);

} // namespace palmtools
