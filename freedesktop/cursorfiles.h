#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QSet>

class ThemeDirectories;

/// The directories in which X clients look for cursor themes: `$XCURSOR_PATH`, else Xcursor's own path.
QByteArrayList cursorClientPath();

/// The same with the other places from which the editor offers themes: the user's data directory, which
/// older Xcursor libraries do not know, and the desktop's own icons.
QByteArrayList cursorSearchPath();

/// The names of all themes in \a directories, those of cursorSearchPath(), that hold cursors.
QSet<QByteArray> cursorThemeNames(ThemeDirectories &directories);

/// The directories in which Xcursor looks for the cursors of \a theme, best first: of the theme, of those it inherits
/// from, of the "default" theme. Not all of them exist.
QByteArrayList cursorDirectories(ThemeDirectories &directories, const QByteArray &theme);

/// The file of the cursor \a name in \a theme, found in \a directories as Xcursor finds it. Empty when there is none.
QByteArray cursorFile(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name);
