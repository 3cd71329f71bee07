#pragma once

#include "settings/wallpapertexts.h"

#include <QColor>
#include <QString>
#include <QStringList>

/// Whether a regular file with an image of a size that can be shown is at \a path.
bool isImageFile(const QString &path);

/// The image file after \a path in its directory, by name and round again; \a path itself when there is no other.
QString nextPicture(const QString &path);

/// The command that shows the image at \a path on the root window.
QStringList showCommand(const QString &path, Fit fit, const QColor &background);

/// A small image of one \a color, in the PPM format.
QByteArray oneColorPicture(const QColor &color);
