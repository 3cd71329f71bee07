#include "freedesktop/iconfiles.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/themedirectories.h"

#include <QFile>

#include <algorithm>

namespace {

constexpr const char *endings[] = {".png", ".svg", ".xpm"}; // in the standard's order

QByteArray fileIn(ThemeDirectories &directories, const QByteArray &directory, const QByteArray &name)
{
    const DirectoryListing &listing = directories.listing(directory);
    for (const char *ending : endings) {
        if (listing.files.contains(name + ending))
            return directory + '/' + name + ending;
    }
    return {};
}

/// The icon in one directory of a theme, which may be spread over several locations.
QByteArray fileInTheme(ThemeDirectories &directories, const QByteArrayList &locations, const QByteArray &path,
                       const QByteArray &name)
{
    const QByteArray top = path.split('/').constFirst();
    for (const QByteArray &location : locations) {
        // Indexes name directories that were never installed; the listing spares a look at each of them.
        if (!top.startsWith('.') && !directories.listing(location).directories.contains(top))
            continue;
        if (QByteArray file = fileIn(directories, location + '/' + path, name); !file.isEmpty())
            return file;
    }
    return {};
}

/// The directories of \a index whose icons are of \a context, those for \a size pixels first, then the nearest.
QVector<IconDirectory> directoriesFor(const IconThemeIndex &index, int size, const QByteArray &context)
{
    QVector<IconDirectory> directories;
    for (const IconDirectory &directory : index.directories) {
        if (context.isEmpty() || directory.context.isEmpty()
            || directory.context.compare(context, Qt::CaseInsensitive) == 0)
            directories.append(directory);
    }
    std::stable_sort(directories.begin(), directories.end(),
                     [size](const IconDirectory &left, const IconDirectory &right) {
                         return sizeDistance(left, size) < sizeDistance(right, size);
                     });
    return directories;
}

} // namespace

QByteArrayList iconSearchPath()
{
    QStringList paths{homeDirectory() + QLatin1String("/.icons")};
    for (const QString &directory : xdgDataDirectories())
        paths.append(directory + QLatin1String("/icons"));
    paths << QStringLiteral("/usr/share/pixmaps") << dataRoot() + QLatin1String("/icons");
    QByteArrayList result;
    for (const QString &path : qAsConst(paths))
        result.append(QFile::encodeName(path));
    return result;
}

QByteArray iconFile(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name, int size,
                    const QByteArray &context)
{
    QByteArrayList themes = directories.withInherited({theme}, &IconThemeIndex::inherits);
    themes.removeAll("hicolor"); // the standard searches it last, whoever names it
    themes.append("hicolor");
    for (const QByteArray &candidate : qAsConst(themes)) {
        const QByteArrayList locations = directories.locations(candidate);
        const IconThemeIndex *index = directories.index(locations);
        if (!index)
            continue;
        for (const IconDirectory &directory : directoriesFor(*index, size, context)) {
            if (QByteArray file = fileInTheme(directories, locations, directory.path, name); !file.isEmpty())
                return file;
        }
    }
    if (!context.isEmpty())
        return {};
    for (const QByteArray &base : directories.searchPath()) {
        if (QByteArray file = fileIn(directories, base, name); !file.isEmpty())
            return file;
    }
    return {};
}
