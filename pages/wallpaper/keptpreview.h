#pragma once

#include "pages/wallpaper/wallpaperpreview.h"

#include <QImage>
#include <QString>

/// Where the preview of the wallpaper \a text is kept; \a position is the fit as the user sees it named.
QString previewPath(const QString &position, const QColor &fill, const QString &text);

/// The preview of the image file \a image, which is kept in the PNG file \a kept together with what it was made from.
/// While none of that has changed, and nobody but the user can have written the file, it is not made again. Null for
/// what is no image. A file that can't be written is ignored.
QImage previewOfFile(const QString &image, const PreviewLook &look, const QString &kept);
