#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// A size of the desktop in pixels.
struct SizeElement {
    const char *name; ///< as shown, in the translation context of the page
    const char *key;
    int minimum;
    int maximum;
    const char
        *choices; ///< the only sizes that can be chosen, separated by commas; nullptr: all of the range
    const char *defaultSize; ///< on a screen of unknown or unusual resolution
    int iconKind;            ///< of the desktop's icon size for the resolution, on all other screens
    int margin;              ///< added to that icon size
};

// clang-format off
constexpr SizeElement sizeElements[] = {
    {QT_TRANSLATE_NOOP("ThemePage", "Desktop icon size"), "DesktopIconSize", 16, 256, "16,22,32,48,64,96,128,256", "48", 1, 0},
    {QT_TRANSLATE_NOOP("ThemePage", "Taskbar height"),    "TaskbarHeight",   21, 280, nullptr,                     "49", 0, 17}};
// clang-format on

/// The size of \a element when none is stored, on a screen of \a dpi dots per inch (0: unknown).
QString defaultSize(const SizeElement &element, double dpi);

/// The sizes to choose from; empty when every size of the range can be chosen.
QStringList sizeChoices(const SizeElement &element);
