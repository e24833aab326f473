#pragma once

#include <QByteArray>

#include <optional>

class QIODevice;

namespace vellumo {

/// Exactly so many bytes of the file, or none.
std::optional<QByteArray> BytesAt(QIODevice &file, quint64 offset, quint64 count);

} // namespace vellumo
