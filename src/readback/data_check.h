#pragma once

#include "readback/delivered_texts.h"

#include <span>

namespace vellumo {

/// A resource that every database has once, whatever its questions are.
struct DataResource {
    QByteArrayView type;
    quint32 number;
    QLatin1StringView field; ///< what it holds, by its name to a user
    /// Holds the resource's data against the texts and appends what differs. Data that cannot be
    /// decoded are one finding, "resource-damaged".
    void (*check)(const QByteArray &data, const DeliveredTexts &texts, QList<Finding> &findings);
};

std::span<const DataResource> DataResources();

} // namespace vellumo
