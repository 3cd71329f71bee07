#include "pages/wallpaper/keptpreview.h"

#include "base/atomicfile.h"
#include "freedesktop/images.h"
#include "settings/directories.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QTextStream>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// The text chunk of the file that holds what it was made from.
const QString originKey = QStringLiteral("Origin");

/// Empty for what is no image for sure: what does not exist, and the kernel's own files, which state no size.
QString originOf(const QString &image, const PreviewLook &look)
{
    struct stat status = {};
    ::stat(QFile::encodeName(image).constData(), &status);
    if (status.st_size == 0)
        return {};
    QString origin;
    QTextStream(&origin) << status.st_dev << ' ' << status.st_ino << ' ' << status.st_size << ' '
                         << status.st_mtim.tv_sec << ' ' << status.st_mtim.tv_nsec << ' '
                         << wordFromFit(look.fit) << ' ' << look.fill.name() << ' ' << look.label.width()
                         << 'x' << look.label.height() << ' ' << look.screen.width() << 'x'
                         << look.screen.height() << ' ' << image;
    return origin;
}

bool isUsersAlone(const QString &path, mode_t type)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return (status.st_mode & (S_IFMT | 077)) == type && status.st_uid == ::geteuid();
}

/// Null when \a path holds no preview of that origin.
QImage keptPreview(const QString &path, const QString &origin)
{
    if (!isUsersAlone(QFileInfo(path).path(), S_IFDIR) || !isUsersAlone(path, S_IFREG))
        return {};
    const QImage kept = loadImage(path);
    return kept.text(originKey) == origin ? kept : QImage();
}

/// Replaces only a regular file of this user, and follows no link: the directory may be one that everybody writes to.
void keepPreview(const QString &path, QImage preview, const QString &origin)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (::lstat(name.constData(), &status) == 0 && (!S_ISREG(status.st_mode) || status.st_uid != ::geteuid()))
        return;
    preview.setText(originKey, origin);
    QByteArray png;
    QBuffer buffer(&png);
    QString error;
    ::chmod(name.constData(), 0600); // a replaced file keeps its bits
    QImageWriter writer(&buffer, "PNG");
    writer.setCompression(0); // which takes long, and makes every start read longer
    if (writer.write(preview))
        static_cast<void>(replaceFile(path, png, &error, 0600, Durability::Remade));
}

} // namespace

QString previewPath(const QString &position, const QColor &fill, const QString &text)
{
    const QString cache = directoryPath(DirectoryKind::RenderedWallpapers);
    return QStringLiteral("%1/%2_%3_%4.png")
        .arg(cache.isEmpty() ? QStringLiteral("/tmp") : cache, position, fill.name(),
             QFileInfo(text).fileName());
}

QImage previewOfFile(const QString &image, const PreviewLook &look, const QString &kept)
{
    const QString origin = originOf(image, look);
    if (origin.isEmpty())
        return {};
    QImage preview = keptPreview(kept, origin);
    if (!preview.isNull())
        return preview;
    const QImage decoded = loadImage(image);
    if (decoded.isNull())
        return {};
    preview = drawPreview(decoded, look);
    keepPreview(kept, preview, origin);
    return preview;
}
