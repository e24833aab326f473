#pragma once

#include "palmtools/common/bytes.h"
#include "palmtools/pilrc/form_object.h"

#include <cstdint>
#include <vector>

namespace palmtools {

struct FormHeader {
    std::uint16_t number = 0;
    Rectangle place = {};
    bool usable = true;
    bool frame = true;
    bool saveBehind = true;
};

/// Builds the resource of a form, object by object.
///
/// What would go beyond the largest resource is counted but not built, so a table of a few words
/// cannot take gigabytes.
class FormBytes
{
public:
    void Add(const FormObject &object);

    /// Bytes of the whole resource, also of one that is too large to be built.
    std::uint64_t Size() const;

    /// The resource. Its Size() must be within the limit.
    Bytes Build(const FormHeader &header) const;

private:
    struct Entry {
        std::uint8_t kind;
        std::size_t offset; ///< from the first object
    };

    std::vector<Entry> m_directory;
    Bytes m_objects;
    std::uint64_t m_objectCount = 0;
    std::uint64_t m_objectsSize = 0;
};

} // namespace palmtools
