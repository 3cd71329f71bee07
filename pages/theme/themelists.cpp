#include "pages/theme/themelists.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "base/diagnostics.h"
#include "freedesktop/cursorfiles.h"
#include "freedesktop/images.h"
#include "freedesktop/themedirectories.h"
#include "pages/theme/previews.h"
#include "platform/qazicontheme.h"
#include "settings/directories.h"

#include <QFile>
#include <QFileInfo>
#include <QIconEngine>
#include <QPixmap>
#include <QX11Info>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>

#include <X11/Xcursor/Xcursor.h>

namespace {

constexpr int themeIconSize = 32;
constexpr qint64 iconPixelLimit = 4096 * 4096;
constexpr int rowLimit = 2048; // of a decoration image; previews are a few dozen pixels high

struct DecorImage {
    const char *file;
    QImage DecorImages::*image;
};

// clang-format off
constexpr DecorImage decorFiles[] = {
    {"titleAT.xpm",   &DecorImages::title},
    {"frameAT.xpm",   &DecorImages::topFrame},
    {"frameATL.xpm",  &DecorImages::topLeftCorner},
    {"frameATR.xpm",  &DecorImages::topRightCorner},
    {"frameAL.xpm",   &DecorImages::leftFrame},
    {"frameAR.xpm",   &DecorImages::rightFrame},
    {"minimizeA.xpm", &DecorImages::minimizeButton},
    {"maximizeA.xpm", &DecorImages::maximizeButton},
    {"closeA.xpm",    &DecorImages::closeButton}};
// clang-format on

/// An icon whose picture \a draw makes when it is shown for the first time.
class LazyIconEngine : public QIconEngine
{
public:
    explicit LazyIconEngine(const std::function<QImage()> &draw)
        : m_draw(draw)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QIconEngine *clone() const override { return new LazyIconEngine(*this); }

private:
    const QIcon &icon()
    {
        if (m_icon.isNull())
            m_icon = QPixmap::fromImage(m_draw());
        return m_icon;
    }

    std::function<QImage()> m_draw;
    QIcon m_icon;
};

QStringList sortedNames(const List<char> &list)
{
    QStringList names;
    for (int i = 0; i < list.count(); ++i)
        names.append(QFile::decodeName(list.at(i)));
    names.sort();
    return names;
}

/// The cursor \a shape of a theme at the display's default cursor size; null when there is none.
QImage loadCursorImage(const char *shape, const QString &theme, ThemeDirectories &directories)
{
    using FilePtr = std::unique_ptr<std::FILE, Release<std::fclose>>;
    using CursorPtr = std::unique_ptr<XcursorImage, Release<XcursorImageDestroy>>;
    const QByteArray path = cursorFile(directories, QFile::encodeName(theme), shape);
    // A FIFO among a theme's cursors would stop the program.
    const FilePtr file(QFileInfo(QFile::decodeName(path)).isFile() ? std::fopen(path.constData(), "re")
                                                                   : nullptr);
    const CursorPtr cursor(file ? XcursorFileLoadImage(file.get(), XcursorGetDefaultSize(QX11Info::display()))
                                : nullptr);
    if (!cursor)
        return {};
    // Premultiplied already, as X wants it.
    return QImage(reinterpret_cast<const uchar *>(cursor->pixels), int(cursor->width), int(cursor->height),
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

/// The icon at \a path: an image file's own pixels, or an SVG drawn in the themes' size. Null when it can't be read, or is
/// so large that it can't be meant as an icon.
QImage loadIconImage(const QString &path)
{
    const QSize size(themeIconSize, themeIconSize);
    return isSvg(path) ? drawSvg(readRegularFile(path).content, size, Qt::transparent, Qt::KeepAspectRatio)
                       : loadImage(path, iconPixelLimit);
}

QString iconPath(const QazIconTheme &theme, const char *name, const char *context)
{
    QString path;
    theme.getIcon(name, themeIconSize, context, &path);
    return path;
}

/// An XPM that states no rows below \a rowLimit: no preview shows them, and decoding thousands takes seconds.
QByteArray withoutHiddenRows(const QByteArray &xpm)
{
    // Every other part is a string. The first one holds four values: width, height, colours, letters of each.
    QByteArrayList parts = xpm.split('"');
    QByteArrayList values = parts.value(1).simplified().split(' ');
    if (values.size() < 4)
        return {};
    values[1] = QByteArray::number(qMin(values.at(1).toInt(), rowLimit));
    parts[1] = values.join(' ');
    return parts.join('"');
}

QImage loadXpm(const QByteArray &path)
{
    const QByteArray content = readRegularFile(QFile::decodeName(path)).content;
    const QImage image = QImage::fromData(withoutHiddenRows(content));
    return image.isNull() ? QImage::fromData(content) : image;
}

/// All images of the decoration theme in \a directory; none when a single one is missing, or it is no theme.
std::optional<DecorImages> loadDecorImages(const QByteArray &directory)
{
    if (!DirectoryListing(directory).files.contains("default.theme"))
        return {};
    DecorImages images;
    for (const DecorImage &row : decorFiles) {
        images.*row.image = loadXpm(directory + '/' + row.file);
        if ((images.*row.image).isNull())
            return {};
    }
    return images;
}

} // namespace

QVector<ThemeEntry> cursorThemeEntries(const QSize &size)
{
    QVector<ThemeEntry> entries;
    List<char> list;
    QazIconTheme::getCursorThemeNames(&list);
    ThemeDirectories directories(cursorSearchPath());
    for (const QString &name : sortedNames(list)) {
        QVector<QImage> cursors;
        for (const char *shape : {"left_ptr", "watch", "xterm"})
            cursors += loadCursorImage(shape, name, directories);
        if (std::none_of(cursors.cbegin(), cursors.cend(), std::mem_fn(&QImage::isNull)))
            entries.append({name, QPixmap::fromImage(threeImagesPreview(size, cursors))});
    }
    return entries;
}

QVector<ThemeEntry> iconThemeEntries(const QSize &size)
{
    QVector<ThemeEntry> entries;
    List<char> list;
    QazIconTheme common("hicolor", nullptr, false); // alive to the end: the themes share what they look up
    common.load();
    QazIconTheme::getThemesNames(&list);
    for (const QString &name : sortedNames(list)) {
        if (name == QLatin1String("hicolor") || name == QLatin1String("default"))
            continue;
        QazIconTheme theme(QFile::encodeName(name).constData(), nullptr, false);
        theme.load();
        if (iconPath(theme, "preferences-system-time", "Applications").isEmpty()) {
            printDiagnostic(
                QStringLiteral("theme %1 is not full (no preferences-system-time in apps)").arg(name));
            continue;
        }
        QStringList paths;
        for (const char *place : {"user-home", "user-trash", "user-desktop"})
            paths += iconPath(theme, place, "Places");
        // Decoding the icons is most of the work; only the themes that come into view need it.
        const auto draw = [size, paths] {
            QVector<QImage> icons;
            std::transform(paths.begin(), paths.end(), std::back_inserter(icons), loadIconImage);
            return threeImagesPreview(size, icons);
        };
        entries.append({name, QIcon(new LazyIconEngine(draw))});
    }
    return entries;
}

QVector<ThemeEntry> decorThemeEntries(const QSize &size)
{
    QVector<ThemeEntry> entries;
    const QByteArray root = QFile::encodeName(directoryPath(DirectoryKind::DecorationThemes));
    QByteArrayList names = DirectoryListing(root).directories.values();
    std::sort(names.begin(), names.end());
    for (const QByteArray &name : qAsConst(names)) {
        if (name.startsWith('.'))
            continue;
        if (const std::optional<DecorImages> images = loadDecorImages(root + '/' + name))
            entries.append({QFile::decodeName(name), QPixmap::fromImage(decorPreview(size, *images))});
    }
    return entries;
}
