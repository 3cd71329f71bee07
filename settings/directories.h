#pragma once

#include <QString>

/// The desktop's well-known directories that the program uses; the numbers are the desktop library's.
enum class DirectoryKind {
    RenderedWallpapers = 1,
    PersonalSettings = 2,
    ThemeFile = 3,
    CurrentDesktop = 6,
    Sounds = 14,
    Home = 18,
    Wallpapers = 21,
    DecorationThemes = 27
};

/// The path of a well-known directory, without a trailing slash; empty when the desktop has none.
QString directoryPath(DirectoryKind kind);
