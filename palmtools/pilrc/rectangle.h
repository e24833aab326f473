#pragma once

#include "palmtools/common/record.h"

#include <cstdint>

namespace palmtools {

/// Pixels, as they were settled; what is stored is checked where it is read.
struct Rectangle {
    std::int64_t x = 0, y = 0, w = 0, h = 0;
};

inline void PutPosition(Record &record, std::size_t offset, const Rectangle &rectangle)
{
    record.Put16(offset, rectangle.x);
    record.Put16(offset + 2, rectangle.y);
}

inline void PutRectangle(Record &record, std::size_t offset, const Rectangle &rectangle)
{
    PutPosition(record, offset, rectangle);
    record.Put16(offset + 4, rectangle.w);
    record.Put16(offset + 6, rectangle.h);
}

} // namespace palmtools
