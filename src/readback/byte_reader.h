#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumo {

/// Takes big-endian values from the front of some bytes, which must outlive it.
///
/// Never reads outside. The first thing that does not add up is kept as the fault; from then on
/// nothing more is taken, and zeros and empty texts are handed out.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes) : m_bytes(bytes) {}

    QByteArrayView Take(qsizetype count);
    /// An unsigned number of 1 to 4 bytes.
    quint32 TakeNumber(qsizetype size);
    /// The bytes up to the next zero byte, which is taken too.
    QByteArray TakeText();

    void PassNumber(qsizetype size, quint32 expected);
    void PassZeros(qsizetype count);
    /// One zero byte, where the number of bytes taken so far is odd.
    void PassPadding();
    void PassEnd();

    /// Bytes taken so far.
    qsizetype Offset() const { return m_offset; }

    /// Makes this the fault unless there is one: words that go on after "... is damaged: ".
    void Refuse(const QString &fault);
    bool Failed() const { return !m_fault.isEmpty(); }
    const QString &Fault() const { return m_fault; }

private:
    QByteArrayView m_bytes;
    qsizetype m_offset = 0;
    QString m_fault;
};

} // namespace vellumo
