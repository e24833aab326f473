#pragma once

#include "platform/result.h"

#include <QByteArrayView>

#include <utility>

namespace vellumo {

/// A POSIX file descriptor, closed at its end; none where opening failed, and errno has the reason.
class Descriptor
{
public:
    explicit Descriptor(int number = -1) : m_number(number) {}
    ~Descriptor() { static_cast<void>(Close()); }
    Descriptor(Descriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }

    explicit operator bool() const { return m_number >= 0; }
    int operator*() const { return m_number; }

    /// Writes all of the bytes. A pipe without a reader is an error like others, and no signal.
    Outcome Write(QByteArrayView bytes) const;
    /// Waits until what was written is on the disk; no error where there is no disk to wait for.
    Outcome Sync() const;
    /// Some file systems tell here alone that a write failed.
    Outcome Close();

private:
    int m_number;
};

} // namespace vellumo
