#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What every input must lead to; ends the program where it did not, which the fuzzer keeps.
inline void Require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Not so: %s\n", what);
    std::abort();
}

/// The input for code that knows Qt; good as long as the input.
inline QByteArray BytesOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data),
                                   static_cast<qsizetype>(size));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
