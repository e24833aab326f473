#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/form_object.h"

#include <optional>

namespace palmtools {

/// Reads the form object that the next word begins, and its place becomes the previous one.
/// Nothing if the next word is not the name of an object; it is not taken then.
std::optional<FormObject> ReadObject(ArgumentReader &arguments);

} // namespace palmtools
