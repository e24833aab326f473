#pragma once

#include "readback/delivered_texts.h"

namespace vellumo {

// Both hold one resource of a question, whose number counts from 1, against what it must be, and
// append what differs. A resource that cannot be decoded is one finding, "resource-damaged".

void CheckForm(const QByteArray &resource, const DeliveredQuestion &question, int number,
               QList<Finding> &findings);

void CheckNavigation(const QByteArray &resource, const DeliveredQuestion &question, int number,
                     QList<Finding> &findings);

} // namespace vellumo
