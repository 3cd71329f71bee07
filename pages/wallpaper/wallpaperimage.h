#pragma once

#include <QImage>
#include <QString>

/// Decodes the image file at \a path; null for everything that is not a whole image in a regular file, and for one of
/// more than 256 MB as 32-bit pixels.
QImage readImage(const QString &path);

/// Keeps the image that was decoded last, so that an unchanged file is decoded once.
class WallpaperImage
{
public:
    /// As readImage().
    QImage load(const QString &path);

private:
    QByteArray m_key; // path, and what changes with the file's content
    QImage m_image;
};
