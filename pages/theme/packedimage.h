#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

/// The pixels of a small image, compressed: fast rather than as small as can be. An image that can't be
/// compressed packs to nothing.
QByteArray packImage(const QImage &image);

/// The premultiplied 32-bit image of \a size that was packed; null when \a packed holds no such image.
QImage unpackImage(const QByteArray &packed, const QSize &size);
