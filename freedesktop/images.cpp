#include "freedesktop/images.h"

#include "base/atomicfile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QScopeGuard>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <sys/resource.h>
#include <unistd.h>

namespace {

qint64 pixelCount(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

/// The address space that this process takes, in bytes.
rlim_t usedSpace()
{
    const qlonglong pages
        = readRegularFile(QStringLiteral("/proc/self/statm")).content.split(' ')[0].toLongLong();
    return rlim_t(pages) * rlim_t(::sysconf(_SC_PAGESIZE));
}

/// Whether a drawing names something as a picture that is no file: Qt would open it while it parses, and wait for a FIFO.
bool namesSpecialFile(const QByteArray &svg)
{
    if (!svg.contains("image"))
        return false;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("image"))
            continue;
        const QFileInfo picture(xml.attributes().value(QLatin1String("xlink:href")).toString().trimmed());
        if (picture.exists() && !picture.isFile())
            return true;
    }
    return false;
}

/// Photographs are megabytes that nobody needs to search.
bool opensSpecialFile(const QImageReader &reader, const QByteArray &content)
{
    return reader.format().startsWith("svg") && namesSpecialFile(content);
}

} // namespace

QImage loadImage(const QString &path, qint64 pixelLimit)
{
    FileContent file = readRegularFile(path);
    QBuffer buffer(&file.content);
    QImageReader reader(&buffer);
    if (opensSpecialFile(reader, file.content) || pixelCount(reader.size()) > pixelLimit)
        return {};

    // Some formats state another size than they decode to, and reserve memory for that one before anybody can object.
    rlimit before = {};
    ::getrlimit(RLIMIT_AS, &before);
    constexpr rlim_t spare = 16 * largestPicture; // bytes: up to 8 a pixel, twice while it is converted
    rlimit during = before;
    during.rlim_cur = qMin(before.rlim_cur, usedSpace() + spare);
    ::setrlimit(RLIMIT_AS, &during);
    const auto undo = qScopeGuard([&before] { ::setrlimit(RLIMIT_AS, &before); });
    QImage image = reader.read();
    return pixelCount(image.size()) > pixelLimit ? QImage() : image;
}

QSize imageSize(const QString &path)
{
    FileContent file = readRegularFile(path);
    QBuffer buffer(&file.content);
    const QImageReader reader(&buffer);
    return opensSpecialFile(reader, file.content) ? QSize() : reader.size();
}

QImage drawSvg(const QByteArray &svg, const QSize &size, const QColor &background, Qt::AspectRatioMode mode)
{
    QSvgRenderer renderer;
    if (namesSpecialFile(svg) || !renderer.load(svg))
        return {};
    const QSize drawn = mode == Qt::IgnoreAspectRatio ? size : renderer.defaultSize().scaled(size, mode);
    QImage picture(drawn.expandedTo(QSize(1, 1)),
                   background.alpha() == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    picture.fill(background);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(picture.rect()));
    return picture;
}
