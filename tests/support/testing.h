#pragma once

// What every test of the house includes: Qt Test, Qt's widgets with all below them, and literals.
#include <QtTest>
#include <QtWidgets>

/// A QString of UTF-8 text: "..."_s.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}
