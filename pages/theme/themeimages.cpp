#include "pages/theme/themeimages.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "freedesktop/cursorfiles.h"
#include "freedesktop/images.h"
#include "freedesktop/themedirectories.h"
#include "settings/directories.h"

#include <QFile>
#include <QX11Info>

#include <algorithm>
#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <X11/Xcursor/Xcursor.h>

namespace {

using XcursorImagePtr = std::unique_ptr<XcursorImage, Release<XcursorImageDestroy>>;
using FilePtr = std::unique_ptr<std::FILE, Release<std::fclose>>;

constexpr qint64 iconPixelLimit = 4096 * 4096;
constexpr int rowLimit = 2048; // of a decoration image; previews are a few dozen pixels high

struct NamedShape {
    unsigned shape;
    const char *name;
};

constexpr NamedShape namedShapes[] = {{68, "left_ptr"}, {150, "watch"}, {152, "xterm"}};

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

/// Opens a regular file only: a FIFO among a theme's cursors would stop the program.
FilePtr openRegularFile(const QByteArray &path)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return nullptr;
    struct stat status = {};
    FilePtr file(::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) ? ::fdopen(descriptor, "r")
                                                                              : nullptr);
    if (!file)
        ::close(descriptor);
    return file;
}

void releaseCursor(void *cursor)
{
    XcursorImageDestroy(static_cast<XcursorImage *>(cursor));
}

/// An XPM without the rows below \a rowLimit: no preview shows them, and decoding thousands takes seconds. What
/// isn't an XPM of more rows is returned as it is.
QByteArray withoutHiddenRows(const QByteArray &xpm)
{
    const int begin = xpm.indexOf('"') + 1;
    const int end = xpm.indexOf('"', begin);
    QByteArrayList values
        = xpm.mid(begin, qMax(0, end - begin)).simplified().split(' '); // width, height, colours
    if (begin == 0 || values.size() < 4 || values.at(1).toInt() <= rowLimit)
        return xpm;
    int position = end;
    // Each colour and each row is a string of its own, between two quotes.
    for (qint64 quotes = 2 * (qint64(values.at(2).toInt()) + rowLimit); quotes > 0 && position >= 0; --quotes)
        position = xpm.indexOf('"', position + 1);
    if (position < 0)
        return xpm;
    values[1] = QByteArray::number(rowLimit);
    return xpm.left(begin) + values.join(' ') + xpm.mid(end, position + 1 - end) + "\n};\n";
}

QImage loadXpm(const QByteArray &path)
{
    const FileContent file = readRegularFile(QFile::decodeName(path));
    if (file.state != FileState::Regular)
        return {};
    const QImage image = QImage::fromData(withoutHiddenRows(file.content), "XPM");
    return image.isNull() ? QImage::fromData(file.content) : image;
}

QByteArray decorThemesDirectory()
{
    return QFile::encodeName(directoryPath(DirectoryKind::DecorationThemes));
}

} // namespace

QImage loadCursorImage(unsigned shape, const QString &theme, ThemeDirectories &directories)
{
    const auto *known = std::find_if(
        std::begin(namedShapes), std::end(namedShapes),
        [shape](const NamedShape &candidate) { return candidate.shape == shape; });
    if (known == std::end(namedShapes))
        return {};
    const QByteArray path = cursorFile(directories, QFile::encodeName(theme), known->name);
    const FilePtr file = path.isEmpty() ? nullptr : openRegularFile(path);
    if (!file)
        return {};
    XcursorImagePtr cursor(XcursorFileLoadImage(file.get(), XcursorGetDefaultSize(QX11Info::display())));
    if (!cursor)
        return {};
    // Premultiplied already, as X wants it; the image owns the cursor and releases it.
    XcursorImage *pixels = cursor.release();
    return QImage(reinterpret_cast<uchar *>(pixels->pixels), int(pixels->width), int(pixels->height),
                  QImage::Format_ARGB32_Premultiplied, releaseCursor, pixels);
}

QImage loadIconImage(const QString &path, int size)
{
    if (isSvg(path))
        return drawSvg(readRegularFile(path).content, {size, size}, Qt::transparent, Qt::KeepAspectRatio);
    return loadImage(path, iconPixelLimit);
}

int listDecorThemes(QStringList *list)
{
    const QByteArray root = decorThemesDirectory();
    const DirectoryListing themes(root);
    list->clear();
    for (const QByteArray &name : themes.directories) {
        if (!name.startsWith('.') && DirectoryListing(root + '/' + name).files.contains("default.theme"))
            list->append(QFile::decodeName(name));
    }
    std::sort(list->begin(), list->end(),
              [](const QString &left, const QString &right) { return left.localeAwareCompare(right) < 0; });
    return list->size();
}

std::optional<DecorImages> loadDecorImages(const QString &name)
{
    const QByteArray directory = decorThemesDirectory() + '/' + QFile::encodeName(name);
    const DirectoryListing listing(directory);
    DecorImages images;
    for (const DecorImage &row : decorFiles) {
        QImage &image = images.*row.image;
        if (listing.files.contains(row.file))
            image = loadXpm(directory + '/' + row.file);
        if (image.isNull())
            return std::nullopt;
    }
    return images;
}
