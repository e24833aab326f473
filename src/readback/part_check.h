#pragma once

#include "readback/database_content.h"
#include "readback/finding.h"

namespace vellumo {

/// Holds a part of a database against what it must be: one that is missing or damaged is a finding,
/// any other goes to compare.
template <typename T, typename Compare>
void CheckPart(const Decoded<T> &part, const ResourceKey &key, const TextPlace &place,
               QList<Finding> &findings, Compare compare)
{
    if (!part)
        findings.append(MissingResource(place, Describe(key)));
    else if (!*part)
        findings.append(DamagedResource(place, (*part).error().text));
    else
        compare(**part);
}

} // namespace vellumo
