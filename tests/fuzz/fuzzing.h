#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What every fuzz target is: takes one input and ends the process when something about it is wrong.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Ends the process when a property of the code under test doesn't hold.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// The input, split at the first byte 1: a file's content, then what is done to it.
struct FuzzInput {
    QByteArray content;
    QByteArray argument;

    FuzzInput(const std::uint8_t *data, std::size_t size)
        : content(reinterpret_cast<const char *>(data), int(size))
    {
        if (const int split = content.indexOf('\1'); split >= 0) {
            argument = content.mid(split + 1);
            content.truncate(split);
        }
    }
};
