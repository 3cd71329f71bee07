#pragma once

#include <QImage>
#include <QString>

#include <future>

/// Decodes the image file at \a path; null for everything that is not a whole image in a regular file, and for one of
/// more than 256 MB as 32-bit pixels.
QImage readImage(const QString &path);

/// Keeps the image that was decoded last, so that an unchanged file is decoded once.
class WallpaperImage
{
public:
    /// As readImage().
    QImage load(const QString &path);
    /// Begins to decode the image at \a path in another thread. The next load() of the unchanged file waits for it.
    void loadAhead(const QString &path);

private:
    QByteArray m_key; // path, and what changes with the file's content
    QImage m_image;
    std::future<QImage> m_ahead; // what m_image will be, until somebody asks for it
};
