#pragma once

#include "pages/theme/previews.h"

#include <QImage>
#include <QString>
#include <QStringList>

#include <optional>

class ThemeDirectories;

/// The cursor of \a shape (a number of the X cursor font: 68 left pointer, 150 watch, 152 text cursor) of a
/// cursor theme, found in \a directories, at the display's default cursor size; a null image when the cursor or its
/// image is missing.
QImage loadCursorImage(unsigned shape, const QString &theme, ThemeDirectories &directories);

/// The icon at \a path for \a size pixels: an image file's own pixels, or an SVG drawn in that size. Null when
/// it can't be read, or is so large that it can't be meant as an icon.
QImage loadIconImage(const QString &path, int size);

/// Fills \a list with the names of the decoration themes, in the order of the user's language; their number.
int listDecorThemes(QStringList *list);

/// All images of the decoration theme \a name; none when a single one is missing.
std::optional<DecorImages> loadDecorImages(const QString &name);
