#include "freedesktop/themedirectories.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "freedesktop/desktopentry.h"

#include <QFile>

#include <memory>

#include <dirent.h>

DirectoryListing::DirectoryListing(const QByteArray &path)
{
    const std::unique_ptr<DIR, Release<::closedir>> directory(::opendir(path.constData()));
    while (const dirent *entry = directory ? ::readdir(directory.get()) : nullptr) {
        // Where a link leads is seen by whoever opens it; asking for each would cost a call a name.
        const bool isOpen = entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN;
        if (isOpen || entry->d_type == DT_DIR)
            directories.insert(entry->d_name);
        if (isOpen || entry->d_type == DT_REG)
            files.insert(entry->d_name);
    }
    directories.subtract({".", ".."});
}

const DirectoryListing &ThemeDirectories::listing(const QByteArray &path)
{
    return m_listings.try_emplace(path, path).first->second;
}

QByteArrayList ThemeDirectories::locations(const QByteArray &name)
{
    QByteArrayList locations;
    for (const QByteArray &base : qAsConst(m_searchPath)) {
        if (listing(base).directories.contains(name))
            locations.append(base + '/' + name);
    }
    return locations;
}

const IconThemeIndex *ThemeDirectories::index(const QByteArrayList &locations)
{
    for (const QByteArray &location : locations) {
        if (!listing(location).files.contains("index.theme"))
            continue;
        const QByteArray path = location + "/index.theme";
        const auto [index, isNew] = m_indexes.try_emplace(path);
        if (isNew) {
            const FileContent file = readRegularFile(QFile::decodeName(path), themeIndexLimit);
            if (file.state == FileState::Regular)
                index->second = parseIconThemeIndex(file.content);
        }
        if (index->second)
            return &*index->second;
    }
    return nullptr;
}

QByteArrayList ThemeDirectories::withInherited(const QByteArrayList &themes,
                                               QByteArrayList IconThemeIndex::*parents)
{
    QByteArrayList all;
    for (QByteArrayList waiting = themes; !waiting.isEmpty();) {
        const QByteArray theme = waiting.takeFirst();
        if (all.contains(theme))
            continue;
        all.append(theme);
        if (const IconThemeIndex *found = index(locations(theme)))
            waiting = found->*parents + waiting;
    }
    return all;
}
