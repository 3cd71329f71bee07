#include "pages/wallpaper/wallpaperselection.h"

#include "base/atomicfile.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/images.h"
#include "platform/wallpapersizeforscreen.h"
#include "settings/backup.h"
#include "settings/directories.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QStandardPaths>

namespace {

const QLatin1String systemWallpapers("/usr/share/wallpapers");

QString directoryName(const QSize &size, QChar separator = QLatin1Char('x'))
{
    return QLatin1Char('/') + QString::number(size.width()) + separator + QString::number(size.height());
}

} // namespace

QString selectionStart(const QString &text, const QSize &screenSize)
{
    QSize standard, ratio;
    WallpaperSizeForScreen(screenSize.width(), screenSize.height(), &standard.rwidth(), &standard.rheight(),
                           &ratio.rwidth(), &ratio.rheight());
    const QString own = directoryPath(DirectoryKind::Wallpapers);
    const QString screen = directoryName(screenSize);
    const QString places[] = {// best first
                              text,
                              own + screen,
                              systemWallpapers + screen,
                              systemWallpapers + directoryName(standard),
                              systemWallpapers + directoryName(ratio, QLatin1Char(':')),
                              systemWallpapers,
                              own};
    for (const QString &place : places) {
        if (QFileInfo::exists(place))
            return place;
    }
    return QDir::homePath();
}

QList<QUrl> sidebarPlaces(QList<QUrl> places)
{
    for (const QString &directory :
         {QDir::homePath(), QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
          directoryPath(DirectoryKind::Wallpapers), dataRoot() + QLatin1String("/wallpapers")}) {
        const QUrl place = QUrl::fromLocalFile(directory);
        if (QFileInfo(directory).isDir() && !places.contains(place))
            places += place;
    }
    places += QUrl::fromLocalFile(systemWallpapers); // there or not
    return places;
}

QString conversionTarget(const QString &path, const QSize &screenSize)
{
    const QString own = directoryPath(DirectoryKind::Wallpapers);
    return (own.isEmpty() ? QDir::homePath() : own) + directoryName(screenSize) + QLatin1Char('/')
           + QFileInfo(path).baseName() + QLatin1String(".png");
}

bool convertSvg(const QString &source, const QString &target, const QSize &size)
{
    QImage picture = drawSvg(readRegularFile(source).content, size, Qt::white);
    if (picture.isNull()) { // the user gets the file that was asked for, if an empty one
        picture = QImage(size, QImage::Format_RGB32);
        picture.fill(Qt::white);
    }
    QByteArray png;
    QBuffer buffer(&png);
    backUp(target);
    QString error;
    return buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "PNG")
           && replaceFile(target, png, &error);
}
