#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/form_object.h"

#include <initializer_list>

namespace palmtools {

/// What can be told of an object in any order; a pair of opposite words is one attribute.
enum class Attribute {
    usable,
    font,
    anchor,
    frame,
    group,
    editable,
    lines,
    underlined,
    numeric,
    maxChars,
    visibleItems,
    tableSize,
    scrollRange,
};

/// The attributes that an object can have.
class AttributeSet
{
public:
    constexpr AttributeSet(std::initializer_list<Attribute> attributes)
    {
        for (const Attribute attribute : attributes)
            m_bits |= BitOf(attribute);
    }

    constexpr bool Has(Attribute attribute) const { return (m_bits & BitOf(attribute)) != 0; }

private:
    static constexpr unsigned BitOf(Attribute attribute)
    {
        return 1u << static_cast<unsigned>(attribute);
    }

    unsigned m_bits = 0;
};

/// Reads attributes into the object up to the first word that is none.
/// Throws ScriptError at one that is not in the set.
void ReadAttributes(ArgumentReader &arguments, AttributeSet allowed, FormObject &object);

} // namespace palmtools
