#pragma once

#include <QColor>
#include <QString>

// The names of the old colour scheme ("qvblue") are known, and only as they were written then.

/// The colour text of a desktop element that stands for \a stored: "Qt" means the default, old names are translated,
/// every other text is itself, whether it names a colour or not.
QString currentColorText(const QString &stored, const QString &defaultColor);

/// The colour of a stored `DesktopColor` text where it is the wallpaper's background; invalid for a text that names no
/// colour.
QColor desktopColor(const QString &stored);
