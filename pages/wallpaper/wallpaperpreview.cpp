#include "pages/wallpaper/wallpaperpreview.h"

#include "settings/directories.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QTemporaryFile>

#include <cstdio>

#include <png.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int margin = 10;          // of the label, in both directions
constexpr int painterLimit = 32767; // Qt scales in 16-bit fixed point: what is larger comes out black

QSize scaledSize(const QSize &image, const QSize &label, const QSize &screen)
{
    const auto scaled = [](int length, int shown, int real) {
        return int(qint64(length) * shown / qMax(1, real));
    };
    return {scaled(image.width(), label.width(), screen.width()),
            scaled(image.height(), label.height(), screen.height())};
}

QImage fastScaled(const QImage &image, const QSize &size)
{
    const auto fits = [](const QSize &s) { return s.width() <= painterLimit && s.height() <= painterLimit; };
    if (fits(image.size()) && fits(size))
        return image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    QImage result(size, QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        const int sourceY = int(qint64(y) * image.height() / size.height());
        for (int x = 0; x < result.width(); ++x)
            line[x] = image.pixel(int(qint64(x) * image.width() / size.width()), sourceY);
    }
    return result;
}

/// Not by Qt, which would load all its image plug-ins first and compress harder than a file for a moment is worth.
QByteArray pngOf(const QImage &preview)
{
    const bool hasAlpha = preview.hasAlphaChannel();
    const QImage pixels = preview.convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    png_image header = {};
    header.version = PNG_IMAGE_VERSION;
    header.width = png_uint_32(pixels.width());
    header.height = png_uint_32(pixels.height());
    header.format = hasAlpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    header.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(header);
    QByteArray png(int(size), Qt::Uninitialized);
    if (!png_image_write_to_memory(&header, png.data(), &size, 0, pixels.constBits(), pixels.bytesPerLine(),
                                   nullptr))
        return {};
    png.truncate(int(size));
    return png;
}

bool mayReplace(const QByteArray &path)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0)
        return true;
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
}

} // namespace

QImage drawPreview(const QImage &image, Fit fit, const QColor &fill, const QSize &labelSize,
                   const QSize &screenSize)
{
    const QSize canvasSize = (labelSize - QSize(margin, margin)).expandedTo(QSize(1, 1));
    if (!image.isNull() && fit == Fit::Stretch)
        return fastScaled(image, canvasSize);

    QImage canvas(canvasSize, QImage::Format_RGB32);
    canvas.fill(fill);
    if (image.isNull())
        return canvas;
    QPainter painter(&canvas);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    QSize size = scaledSize(image.size(), labelSize, screenSize);
    if (fit == Fit::Tile) {
        // A pattern of a few pixels scales to nothing, and steps of nothing would never reach the end.
        size = size.expandedTo(QSize(1, 1));
        const QImage tile = fastScaled(image, size);
        for (int x = 0; x < canvas.width(); x += size.width()) {
            for (int y = 0; y < canvas.height(); y += size.height())
                painter.drawImage(x, y, tile);
        }
    } else if (!size.isEmpty()) {
        painter.drawImage((canvas.width() - size.width()) / 2, (canvas.height() - size.height()) / 2,
                          fastScaled(image, size));
    }
    return canvas;
}

QString previewPath(const QString &position, const QColor &fill, const QString &text)
{
    const QString cache = directoryPath(DirectoryKind::RenderedWallpapers);
    return QStringLiteral("%1/%2_%3_%4.png")
        .arg(cache.isEmpty() ? QStringLiteral("/tmp") : cache, position, fill.name(),
             QFileInfo(text).fileName());
}

bool writePreview(const QString &path, const QImage &preview)
{
    const QByteArray target = QFile::encodeName(path);
    if (!mayReplace(target))
        return false;
    const QByteArray png = pngOf(preview);
    QTemporaryFile file(QFileInfo(path).path() + QLatin1String("/.qaz-preview-XXXXXX"));
    if (png.isEmpty() || !file.open() || file.write(png) != png.size() || !file.flush())
        return false;
    if (std::rename(QFile::encodeName(file.fileName()).constData(), target.constData()) != 0)
        return false;
    file.setAutoRemove(false);
    return true;
}
