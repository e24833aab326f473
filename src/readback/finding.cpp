#include "readback/finding.h"

#include "readback/shown_text.h"

using namespace Qt::StringLiterals;

namespace vellumo {

Finding OtherText(QLatin1StringView code, const TextPlace &place, QByteArrayView found,
                  QByteArrayView expected)
{
    return {code, place, u"%1 is %2."_s.arg(Describe(place), ShownDifference(found, expected))};
}

Finding DamagedResource(const TextPlace &place, const QString &damage)
{
    return {"resource-damaged"_L1, place, u"%1 is damaged: %2."_s.arg(Describe(place), damage)};
}

} // namespace vellumo
