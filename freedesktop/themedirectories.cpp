#include "freedesktop/themedirectories.h"

#include "base/atomicfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QTimer>

std::shared_ptr<ThemeDirectories> ThemeDirectories::current()
{
    static std::weak_ptr<ThemeDirectories> held;
    if (std::shared_ptr<ThemeDirectories> directories = held.lock())
        return directories;
    auto directories = std::make_shared<ThemeDirectories>();
    held = directories;
    // One load asks for many themes, one after the other; the event keeps the answers until it is over.
    if (QCoreApplication::instance())
        QTimer::singleShot(0, QCoreApplication::instance(), [directories] {});
    return directories;
}

const DirectoryListing &ThemeDirectories::listing(const QByteArray &path)
{
    std::shared_ptr<const DirectoryListing> &listing = m_listings[path];
    if (!listing)
        listing = std::make_shared<const DirectoryListing>(path);
    return *listing;
}

QByteArrayList ThemeDirectories::locations(const QByteArrayList &bases, const QByteArray &name)
{
    QByteArrayList locations;
    if (name.isEmpty() || name == "." || name == ".." || name.contains('/'))
        return locations;
    for (const QByteArray &base : bases) {
        if (listing(base).hasDirectory(name.constData()))
            locations.append(base + '/' + name);
    }
    return locations;
}

const IconThemeIndex *ThemeDirectories::index(const QByteArrayList &locations)
{
    for (const QByteArray &location : locations) {
        if (!listing(location).hasFile("index.theme"))
            continue;
        const QByteArray path = location + "/index.theme";
        const bool isKnown = m_indexes.contains(path);
        std::shared_ptr<const IconThemeIndex> &index = m_indexes[path];
        if (!isKnown) {
            const FileContent file = readRegularFile(QFile::decodeName(path));
            if (file.state == FileState::Regular)
                index = std::make_shared<const IconThemeIndex>(parseIconThemeIndex(file.content));
        }
        if (index)
            return index.get();
    }
    return nullptr;
}

const QByteArrayList &ThemeDirectories::searchPath(QByteArrayList (*compute)())
{
    QByteArrayList &path = m_searchPaths[compute];
    if (path.isEmpty())
        path = compute();
    return path;
}
