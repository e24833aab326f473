#pragma once

#include <QByteArrayView>
#include <QString>

#include <map>
#include <vector>

namespace vellumo {

// What a compiled help file tells its viewer, in objects that have other structures than pages.

/// The text up to a zero byte or the end of the bytes, at most 1,024 bytes of it; empty where the
/// offset lies beyond the bytes.
QString TextAt(QByteArrayView bytes, quint64 offset);

/// The texts of #SYSTEM by their codes, systemObject::Code; of two with the same code the first.
std::map<quint16, QString> ReadSystemItems(QByteArrayView bytes);

struct ContextEntry {
    quint32 number = 0;
    quint32 page = 0; ///< offset of its name in #STRINGS
};

/// The pairs of #IVB, at most 65,536 of them.
std::vector<ContextEntry> ReadContexts(QByteArrayView bytes);

} // namespace vellumo
