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

/// The user's current theme file of this session.
QString defaultThemeFile();

/// The theme file to edit: the only argument, if it names an existing regular file, as an absolute path; else
/// defaultThemeFile(). \a argc and \a argv are main's, without Qt's own options.
QString chooseThemeFile(int argc, char **argv);
