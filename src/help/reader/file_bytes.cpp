#include "help/reader/file_bytes.h"

#include <QIODevice>

namespace vellumo {

std::optional<QByteArray> BytesAt(QIODevice &file, quint64 offset, quint64 count)
{
    // Looked at first, since reading makes room for what a damaged file only claims to have.
    const auto size = quint64(file.size());
    if (offset > size || count > size - offset || !file.seek(qint64(offset)))
        return std::nullopt;
    QByteArray bytes = file.read(qint64(count));
    if (quint64(bytes.size()) != count)
        return std::nullopt;
    return bytes;
}

} // namespace vellumo
