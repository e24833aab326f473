#include "platform/identifier.h"

#include <QUuid>

namespace vellumo {

QString MakeIdentifier()
{
    return QUuid::createUuid().toString().toUpper();
}

} // namespace vellumo
