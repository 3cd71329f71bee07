#pragma once

#include <QByteArray>
#include <QByteArrayList>

class ThemeDirectories;

/// The base directories of icon themes in the standard's order, then the desktop's own icons.
QByteArrayList iconSearchPath();

/// The file of the icon \a name for \a size pixels in \a theme, by the standard's lookup: the theme, its
/// parents, "hicolor". Only directories of \a context count, and those that state none. An empty context means
/// any; then icons outside all themes come last. Empty when there is none.
/// \a directories are those of iconSearchPath().
QByteArray iconFile(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name, int size,
                    const QByteArray &context);
