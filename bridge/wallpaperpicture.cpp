#include "bridge/wallpaperpicture.h"

#include "freedesktop/images.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

struct Format {
    const char *name;
    const char *begin; // of the file
    int skipped = 0;   // bytes before that
};

// Qt would try all its plug-ins on a file of an unknown format, and load what a drawing takes for them.
constexpr Format formats[] = {{"png", "\x89PNG"},  {"jpeg", "\xff\xd8\xff"}, {"xpm", "/* XPM"},
                              {"webp", "WEBP", 8}, {"gif", "GIF8"},          {"bmp", "BM"},
                              {"tiff", "II*"},     {"tiff", "MM"},           {"ppm", "P6"}};

} // namespace

bool isImageFile(const QString &path)
{
    // A FIFO or a device would block whoever opens it.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    if (isSvg(path))
        return file.size() > 0;
    const QByteArray head = file.peek(16);
    const auto format = std::find_if(std::begin(formats), std::end(formats), [&head](const Format &known) {
        return head.mid(known.skipped).startsWith(known.begin);
    });
    if (format == std::end(formats))
        return false;
    QImageReader reader(&file, format->name);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    return !size.isEmpty() && qint64(size.width()) * size.height() <= largestPicture;
}

QString nextPicture(const QString &path)
{
    const QDir directory = QFileInfo(path).dir();
    QStringList names = directory.entryList(QDir::Files, QDir::Name);
    std::rotate(names.begin(), names.begin() + names.indexOf(QFileInfo(path).fileName()) + 1, names.end());
    const auto next = std::find_if(names.cbegin(), names.cend(), [&directory](const QString &name) {
        return isImageFile(directory.filePath(name));
    });
    return next == names.cend() ? path : directory.filePath(*next);
}
