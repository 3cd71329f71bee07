#include "tests/support/samplethemes.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <algorithm>

#include "tests/support/temporaryhome.h"

#include <X11/Xcursor/Xcursor.h>

namespace {

QByteArray encoded(const QSize &size, const QColor &color, const char *format)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray content;
    QBuffer buffer(&content);
    if (!image.save(&buffer, format))
        qFatal("Can't encode %s", format);
    return content;
}

} // namespace

void makeCursorTheme(const TemporaryHome &home, const QString &path, const QColor &color,
                     const QStringList &names, int size)
{
    home.makeDirectory(path + QLatin1String("/cursors"));
    for (const QString &name : names) {
        XcursorImage *image = XcursorImageCreate(size, size);
        std::fill_n(image->pixels, size * size, color.rgba());
        const QByteArray file = QFile::encodeName(home.path(path + QLatin1String("/cursors/") + name));
        image->size = XcursorDim(size);
        image->xhot = image->yhot = image->delay = 0;
        XcursorImages *images = XcursorImagesCreate(1);
        images->images[0] = image;
        images->nimage = 1;
        if (!XcursorFilenameSaveImages(file.constData(), images))
            qFatal("Can't write %s", file.constData());
        XcursorImagesDestroy(images);
    }
}

void makeIconTheme(const TemporaryHome &home, const QString &path, const QColor &color)
{
    home.write(path + QLatin1String("/index.theme"), "[Icon Theme]\nDirectories=p,a\n[p]\nSize=32\n"
                                                     "Context=Places\n[a]\nSize=32\nContext=Applications\n");
    const QByteArray icon = encoded({32, 32}, color, "PNG");
    for (const char *name : {"p/user-home", "p/user-trash", "p/user-desktop", "a/preferences-system-time"})
        home.write(path + u'/' + QLatin1String(name) + QLatin1String(".png"), icon);
}

void makeDecorTheme(const TemporaryHome &home, const QString &path, const QColor &color)
{
    home.write(path + QLatin1String("/default.theme"), "Name=Sample\n");
    for (const char *name : {"titleAT", "frameAT", "frameATL", "frameATR", "frameAL", "frameAR", "minimizeA",
                             "maximizeA", "closeA"})
        home.write(path + u'/' + QLatin1String(name) + QLatin1String(".xpm"), encoded({4, 8}, color, "XPM"));
}
