#include "handheld/delivery_warning.h"

using namespace Qt::StringLiterals;

namespace vellumo {

QString Describe(const DeliveryWarning &warning)
{
    return Quote(warning.place, warning.text) + ": "_L1 + warning.reason;
}

} // namespace vellumo
