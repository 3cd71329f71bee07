#pragma once

#include <QString>

/// A QString of UTF-8 text: "..."_s.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}
