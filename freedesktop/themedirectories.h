#pragma once

#include "freedesktop/directorylisting.h"
#include "freedesktop/iconthemeindex.h"

#include <QByteArrayList>

#include <map>
#include <optional>

/// The directories and index files of icon or cursor themes. Each is read at most once in the life of the
/// object, which is made for one listing: what the user installs meanwhile is seen by the next one.
class ThemeDirectories
{
public:
    /// Themes stand in the directories of \a searchPath, the first one's before the others'.
    explicit ThemeDirectories(const QByteArrayList &searchPath)
        : m_searchPath(searchPath)
    {}
    ThemeDirectories(const ThemeDirectories &) = delete;
    ThemeDirectories &operator=(const ThemeDirectories &) = delete;

    const QByteArrayList &searchPath() const { return m_searchPath; }

    /// The directory at \a path; an empty listing when it can't be read.
    const DirectoryListing &listing(const QByteArray &path);

    /// Where the theme \a name stands.
    QByteArrayList locations(const QByteArray &name);

    /// The first index.theme in \a locations that can be read; null when there is none.
    const IconThemeIndex *index(const QByteArrayList &locations);

private:
    QByteArrayList m_searchPath;
    std::map<QByteArray, DirectoryListing> m_listings;
    std::map<QByteArray, std::optional<IconThemeIndex>> m_indexes; ///< by path
};
