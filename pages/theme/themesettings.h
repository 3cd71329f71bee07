#pragma once

#include "settings/themekeys.h"

/// A size of the desktop in pixels. Where its key has a closed set, only those sizes can be chosen.
struct SizeElement {
    const ThemeKey *key;
    int iconKind; ///< of the desktop's icon size that is the default on screens of usual resolution
    int margin;   ///< added to that icon size
};

inline constexpr SizeElement sizeElements[] = {{&themeKey("DesktopIconSize"), 1, 0},
                                               {&themeKey("TaskbarHeight"), 0, 17}};

/// The size of \a element when none is stored, on a screen of \a dpi dots per inch (0: unknown).
QString defaultSize(const SizeElement &element, double dpi);
