#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <QByteArray>

/// Called with one input after the other. It returns from whatever it is given; what it finds wrong it ends
/// the process with.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
}

/// What must hold for every input.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}
