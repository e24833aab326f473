#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/form_object.h"

namespace palmtools {

/// The attributes that an object can have; a pair of opposite words is one attribute.
enum AttributeSet : unsigned {
    noAttributes = 0,
    usable = 1u << 0,
    font = 1u << 1,
    anchor = 1u << 2,
    frame = 1u << 3,
    group = 1u << 4,
    editable = 1u << 5,
    lines = 1u << 6,
    underlined = 1u << 7,
    numeric = 1u << 8,
    maxChars = 1u << 9,
    visibleItems = 1u << 10,
    tableSize = 1u << 11,
    scrollRange = 1u << 12,
};

/// Reads attributes into the object up to the first word that is none.
/// Throws ScriptError at one that is not in the set.
void ReadAttributes(ArgumentReader &arguments, unsigned allowed, FormObject &object);

} // namespace palmtools
