#pragma once

#include "palmtools/pilrc/object_bytes.h"

#include <string>

namespace palmtools {

inline constexpr Rectangle place = {1, 2, 0x103, -4};

inline std::string EncodedAs(const FormObject &object)
{
    Bytes bytes;
    AppendObject(bytes, object);
    return bytes;
}

} // namespace palmtools
