#include "readback/byte_reader.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {

QByteArrayView ByteReader::Take(qsizetype count)
{
    if (Failed())
        return {};
    if (count > m_bytes.size() - m_offset) {
        Refuse(u"it ends too early, at byte %1"_s.arg(m_bytes.size()));
        return {};
    }
    const QByteArrayView taken = m_bytes.sliced(m_offset, count);
    m_offset += count;
    return taken;
}

quint32 ByteReader::TakeNumber(qsizetype size)
{
    Q_ASSERT(size >= 1 && size <= 4);
    quint32 number = 0;
    for (const char byte : Take(size))
        number = number << 8 | static_cast<unsigned char>(byte);
    return number;
}

QByteArray ByteReader::TakeText()
{
    const qsizetype end = m_bytes.indexOf('\0', m_offset);
    if (end < 0)
        Refuse(u"the text at byte %1 has no end"_s.arg(m_offset));
    QByteArray text = Take(end - m_offset).toByteArray();
    Take(1);
    return text;
}

void ByteReader::PassNumber(qsizetype size, quint32 expected)
{
    const qsizetype start = m_offset;
    const quint32 number = TakeNumber(size);
    if (number != expected)
        Refuse(u"the number at byte %1 is %2 instead of %3"_s.arg(start).arg(number).arg(expected));
}

void ByteReader::PassZeros(qsizetype count)
{
    const qsizetype start = m_offset;
    const QByteArrayView taken = Take(count);
    const auto other = std::ranges::find_if(taken, [](char byte) { return byte != 0; });
    if (other != taken.end())
        Refuse(u"byte %1 is not zero"_s.arg(start + (other - taken.begin())));
}

void ByteReader::PassPadding()
{
    if (m_offset % 2 != 0)
        PassZeros(1);
}

void ByteReader::PassEnd()
{
    if (m_offset != m_bytes.size())
        Refuse(u"it should end at byte %1, but has %2 bytes"_s.arg(m_offset).arg(m_bytes.size()));
}

void ByteReader::Refuse(const QString &fault)
{
    if (!Failed())
        m_fault = fault;
}

} // namespace vellumo
