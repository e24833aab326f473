#include "platform/identifier.h"

#include <QUuid>

QString MakeIdentifier()
{
    return QUuid::createUuid().toString().toUpper();
}
