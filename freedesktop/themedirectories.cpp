#include "freedesktop/themedirectories.h"

#include "base/atomicfile.h"
#include "freedesktop/desktopentry.h"

#include <QFile>

const DirectoryListing &ThemeDirectories::listing(const QByteArray &path)
{
    return m_listings.try_emplace(path, path).first->second;
}

QByteArrayList ThemeDirectories::locations(const QByteArray &name)
{
    QByteArrayList locations;
    if (name.isEmpty() || name == "." || name == ".." || name.contains('/'))
        return locations;
    for (const QByteArray &base : qAsConst(m_searchPath)) {
        if (listing(base).hasDirectory(name))
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
