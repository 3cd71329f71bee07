#include "pages/wallpaper/wallpaperimage.h"

#include <QFile>
#include <QImageReader>

#include <cstring>

#include <sys/stat.h>

namespace {

constexpr qint64 largestPixelCount = 256 * 1024 * 1024 / 4;

constexpr uchar startOfImage = 0xD8, endOfImage = 0xD9, temporary = 0x01;

bool isStandaloneMarker(uchar marker)
{
    return marker == temporary || (marker >= 0xD0 && marker <= startOfImage);
}

/// Whether the stream has its end marker. The decoder takes a cut-off file for a grey picture.
/// Segments (which may hold thumbnails with end markers of their own) are stepped over.
bool isWholeJpeg(const uchar *data, qint64 size)
{
    for (qint64 i = 2; i + 1 < size;) {
        const void *found = std::memchr(data + i, 0xFF, size_t(size - i - 1));
        if (!found)
            return false;
        i = static_cast<const uchar *>(found) - data;
        const uchar marker = data[i + 1];
        if (marker == endOfImage)
            return true;
        if (marker == 0xFF) {
            ++i;
            continue;
        }
        i += 2;
        // A zero byte marks a 0xFF of the compressed data, which has no length either.
        if (marker != 0 && !isStandaloneMarker(marker) && i + 1 < size)
            i += data[i] << 8 | data[i + 1];
    }
    return false;
}

bool isCutOff(const QString &path, const QByteArray &format)
{
    if (format != "jpeg" && format != "jpg")
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return true;
    const uchar *data = file.map(0, file.size());
    return !data || !isWholeJpeg(data, file.size());
}

/// Fails for what is no image for sure. The kernel's own files state no size, and some block whoever reads them.
bool fileStatus(const QString &path, struct stat *status)
{
    return ::stat(QFile::encodeName(path).constData(), status) == 0 && S_ISREG(status->st_mode)
           && status->st_size > 0;
}

template<typename T>
QByteArray bytesOf(const T &value)
{
    return QByteArray(reinterpret_cast<const char *>(&value), sizeof value);
}

/// Differs when the file or its content does; empty for what is no image for sure.
QByteArray fileKey(const QString &path)
{
    struct stat status = {};
    if (!fileStatus(path, &status))
        return {};
    return QFile::encodeName(path) + '\0' + bytesOf(status.st_dev) + bytesOf(status.st_ino)
           + bytesOf(status.st_size) + bytesOf(status.st_mtim);
}

} // namespace

QImage readImage(const QString &path)
{
    struct stat status = {};
    if (!fileStatus(path, &status))
        return {};
    QImageReader reader(path);
    const QSize size = reader.size();
    const bool isSizeKnown = reader.supportsOption(QImageIOHandler::Size);
    if (isSizeKnown && (size.isEmpty() || qint64(size.width()) * size.height() > largestPixelCount))
        return {};
    return isCutOff(path, reader.format()) ? QImage() : reader.read();
}

QImage WallpaperImage::load(const QString &path)
{
    const QByteArray key = fileKey(path);
    if (key.isEmpty())
        return {};
    if (key != m_key) {
        m_image = QImage(); // freed before the next one is decoded
        m_ahead = {};
        m_image = readImage(path);
        m_key = key;
    } else if (m_ahead.valid()) {
        m_image = m_ahead.get();
    }
    return m_image;
}

void WallpaperImage::loadAhead(const QString &path)
{
    m_key = fileKey(path);
    m_image = QImage();
    if (!m_key.isEmpty())
        m_ahead = std::async(readImage, path);
}
