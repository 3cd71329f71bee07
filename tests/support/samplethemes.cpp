#include "tests/support/samplethemes.h"

#include "tests/support/temporaryhome.h"

namespace {

QByteArray encoded(const QSize &size, const QColor &color, const char *format)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray content;
    QBuffer buffer(&content);
    image.save(&buffer, format);
    return content;
}

} // namespace

void makeCursorTheme(const TemporaryHome &home, const QString &path, const QColor &color,
                     const QStringList &names, int size)
{
    const auto edge = quint32(size);
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    // "Xcur", the header's size, the version; an image of that size, and where it is.
    for (const quint32 number : {0x72756358U, 16U, 0x10000U, 1U, 0xfffd0002U, edge, 28U})
        out << number;
    // The image: its header's size, kind, size and version; width, height, hot spot, delay.
    for (const quint32 number : {36U, 0xfffd0002U, edge, 1U, edge, edge, 0U, 0U, 0U})
        out << number;
    for (int i = 0; i < size * size; ++i)
        out << color.rgba();
    for (const QString &name : names)
        home.write(path + QLatin1String("/cursors/") + name, file);
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
