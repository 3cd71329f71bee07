#pragma once

#include "settings/wallpapertexts.h"

#include <QColor>
#include <QImage>
#include <QString>

/// What the monitor picture shows of \a image on a screen of \a screenSize pixels: a picture 10 pixels narrower and
/// lower than the preview label of \a labelSize. A null image gives a picture of \a fill alone.
QImage drawPreview(const QImage &image, Fit fit, const QColor &fill, const QSize &labelSize,
                   const QSize &screenSize);

/// Where the preview of the wallpaper \a text is kept; \a position is the fit as the user sees it named.
QString previewPath(const QString &position, const QColor &fill, const QString &text);

/// Writes \a preview as PNG. Replaces only a regular file of this user, and follows no link at \a path: the directory
/// may be one that everybody writes to. Returns whether it was written.
bool writePreview(const QString &path, const QImage &preview);
