#pragma once

#include <QString>

// A virtual desktop may have a wallpaper of its own: the key X-QAZ-WallPaper in the `.directory` file of its
// directory. The file is the user's; everything else in it stays byte for byte.

/// The wallpaper of the current virtual desktop as it is stored, quotes included; empty when it has none.
QString currentDesktopWallpaper();

/// The same of the virtual desktop \a number, counted from 1.
QString desktopWallpaper(int number);

/// Stores \a wallpaper (a path, a name or "#rrggbb") for the current virtual desktop and announces it to the
/// window manager, changed or not. Without a readable `.directory` file it does nothing. A text of 4096 bytes or
/// more, or with a line break, is refused with one line on standard error.
void setCurrentDesktopWallpaper(const QString &wallpaper);

/// Removes the wallpapers of all virtual desktops. A file that is rewritten is backed up first; a file
/// without the key is not touched.
void removeDesktopWallpapers();
