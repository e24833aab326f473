#pragma once

#include <QByteArray>
#include <QtEndian>

namespace vellumo {

/// Appends the value, its lowest byte first.
template <typename Number> void AppendLittle(QByteArray &bytes, Number value)
{
    const Number stored = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

/// The number whose lowest byte stands at the offset; all its bytes must exist.
template <typename Number> Number LittleAt(QByteArrayView bytes, qsizetype offset)
{
    Q_ASSERT(offset >= 0 && bytes.size() - offset >= qsizetype(sizeof(Number)));
    return qFromLittleEndian<Number>(bytes.data() + offset);
}

} // namespace vellumo
