#include "freedesktop/iconfiles.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/themedirectories.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace {

constexpr const char *endings[] = {".png", ".svg", ".xpm"}; // in the standard's order

QByteArray fileIn(ThemeDirectories &directories, const QByteArray &directory, const QByteArray &name)
{
    const DirectoryListing &listing = directories.listing(directory);
    for (const char *ending : endings) {
        if (listing.hasFile(name + ending))
            return directory + '/' + name + ending;
    }
    return {};
}

/// The icon in one directory of a theme, which may be spread over several locations.
QByteArray fileInTheme(ThemeDirectories &directories, const QByteArrayList &locations, const QByteArray &path,
                       const QByteArray &name)
{
    const int slash = path.indexOf('/');
    const QByteArray top = slash < 0 ? path : path.left(slash);
    for (const QByteArray &location : locations) {
        // Indexes name directories that were never installed; the listing spares a look at each of them.
        if (!top.isEmpty() && top != "." && top != ".." && !directories.listing(location).hasDirectory(top))
            continue;
        if (QByteArray file = fileIn(directories, location + '/' + path, name); !file.isEmpty())
            return file;
    }
    return {};
}

bool isOfContext(const IconDirectory &directory, const QByteArray &context)
{
    return context.isEmpty() || directory.context.isEmpty()
           || directory.context.compare(context, Qt::CaseInsensitive) == 0;
}

struct Lookup {
    ThemeDirectories &directories;
    QByteArray name;
    int size;
    QByteArray context;
    QSet<QByteArray> seen; ///< themes that were searched: they may inherit in a circle

    QByteArray inOneTheme(const IconThemeIndex &index, const QByteArrayList &locations) const
    {
        QVector<IconDirectory> others;
        for (const IconDirectory &directory : index.directories) {
            if (!isOfContext(directory, context))
                continue;
            if (!matchesSize(directory, size)) {
                others.append(directory);
                continue;
            }
            if (QByteArray file = fileInTheme(directories, locations, directory.path, name); !file.isEmpty())
                return file;
        }
        std::stable_sort(others.begin(), others.end(),
                         [this](const IconDirectory &left, const IconDirectory &right) {
                             return sizeDistance(left, size) < sizeDistance(right, size);
                         });
        for (const IconDirectory &directory : qAsConst(others)) {
            if (QByteArray file = fileInTheme(directories, locations, directory.path, name); !file.isEmpty())
                return file;
        }
        return {};
    }

    QByteArray inThemeAndParents(const QByteArray &theme)
    {
        if (seen.contains(theme))
            return {};
        seen.insert(theme);
        const QByteArrayList locations = directories.locations(theme);
        const IconThemeIndex *index = directories.index(locations);
        if (!index)
            return {};
        if (QByteArray file = inOneTheme(*index, locations); !file.isEmpty())
            return file;
        for (const QByteArray &parent : index->inherits) {
            if (parent == "hicolor") // the standard searches it last, whoever names it
                continue;
            if (QByteArray file = inThemeAndParents(parent); !file.isEmpty())
                return file;
        }
        return {};
    }
};

} // namespace

QByteArrayList iconSearchPath()
{
    QStringList paths{homeDirectory() + QLatin1String("/.icons")};
    for (const QString &directory : xdgDataDirectories())
        paths.append(directory + QLatin1String("/icons"));
    paths << QStringLiteral("/usr/share/pixmaps") << dataRoot() + QLatin1String("/icons");
    paths.removeDuplicates();
    QByteArrayList result;
    for (const QString &path : qAsConst(paths))
        result.append(QFile::encodeName(path));
    return result;
}

QByteArray iconFile(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name, int size,
                    const QByteArray &context)
{
    Lookup lookup{directories, name, size, context, {}};
    if (QByteArray file = lookup.inThemeAndParents(theme); !file.isEmpty())
        return file;
    if (QByteArray file = lookup.inThemeAndParents(QByteArrayLiteral("hicolor")); !file.isEmpty())
        return file;
    if (!context.isEmpty())
        return {};
    for (const QByteArray &base : directories.searchPath()) {
        if (QByteArray file = fileIn(directories, base, name); !file.isEmpty())
            return file;
    }
    return {};
}
