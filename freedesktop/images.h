#pragma once

#include <QImage>
#include <QString>

/// The most pixels that a picture may have: 256 megapixels.
constexpr qint64 largestPicture = 256 * 1024 * 1024;

/// Decodes the image in the regular file at \a path. Null for what is no image and for one that would have more than
/// \a pixelLimit pixels. Of a JPEG that ends too early what there is.
QImage loadImage(const QString &path, qint64 pixelLimit = largestPicture);

/// The size that the image file at \a path states, in pixels; empty for what is no image.
QSize imageSize(const QString &path);

/// Whether a file is taken for an SVG: by its ending. Upper-case endings are other images, which their content tells.
inline bool isSvg(const QString &path)
{
    return path.endsWith(QLatin1String(".svg")) || path.endsWith(QLatin1String(".svgz"));
}

/// Draws an SVG, also a compressed one, on a picture of \a size that is first filled with \a background. The drawing
/// fills it, or keeps its proportions with the picture as small as that allows. Null for what is no SVG.
QImage drawSvg(const QByteArray &svg, const QSize &size, const QColor &background,
               Qt::AspectRatioMode mode = Qt::IgnoreAspectRatio);
