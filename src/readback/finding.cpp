#include "readback/finding.h"

#include "readback/shown_text.h"

using namespace Qt::StringLiterals;

namespace vellumo {

Finding OtherText(QLatin1StringView code, const TextPlace &place, QByteArrayView found,
                  QByteArrayView expected)
{
    return {code, place, u"%1 is %2."_s.arg(Describe(place), ShownDifference(found, expected))};
}

Finding OtherLength(QLatin1StringView code, const TextPlace &place, qsizetype found,
                    qsizetype expected)
{
    return {code, place,
            u"%1 has %2 entries instead of %3."_s.arg(Describe(place)).arg(found).arg(expected)};
}

Finding MissingResource(const TextPlace &place, const QString &resource)
{
    return {"resource-missing"_L1, place,
            u"%1 is missing: there is no resource %2."_s.arg(Describe(place), resource)};
}

Finding DamagedResource(const TextPlace &place, const QString &damage)
{
    return {"resource-damaged"_L1, place, u"%1 is damaged: %2."_s.arg(Describe(place), damage)};
}

} // namespace vellumo
