#pragma once

#include "model/texts.h"

#include <QByteArrayView>
#include <QString>

namespace vellumo {

/// Something in which a database is not what its project asks for.
struct Finding {
    QLatin1StringView code; ///< for machines, such as "item-count"; never changes
    TextPlace place;        ///< its question is 0 where none applies
    QString text;           ///< a sentence for a person
};

/// The finding that a text is another one than expected.
Finding OtherText(QLatin1StringView code, const TextPlace &place, QByteArrayView found,
                  QByteArrayView expected);

/// The finding that a list has another number of entries than there are questions.
Finding OtherLength(QLatin1StringView code, const TextPlace &place, qsizetype found,
                    qsizetype expected);

/// The finding "resource-missing" for what the described resource should hold.
Finding MissingResource(const TextPlace &place, const QString &resource);

/// The finding "resource-damaged" for a resource that cannot be decoded; the damage goes on after
/// "... is damaged: ".
Finding DamagedResource(const TextPlace &place, const QString &damage);

} // namespace vellumo
