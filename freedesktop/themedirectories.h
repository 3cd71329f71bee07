#pragma once

#include "freedesktop/iconthemeindex.h"

#include <QByteArrayList>
#include <QSet>

#include <map>
#include <optional>

/// The names in a directory, in the file system's own bytes, read once. A directory that can't be read has none.
struct DirectoryListing {
    explicit DirectoryListing(const QByteArray &path);

    QSet<QByteArray> directories; ///< also links, which may lead to one; without "." and ".."
    QSet<QByteArray> files;       ///< regular ones, and links, which may lead to one
};

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

    /// \a themes, each followed by those that it inherits from and their own \a parents, each once.
    QByteArrayList withInherited(const QByteArrayList &themes, QByteArrayList IconThemeIndex::*parents);

private:
    QByteArrayList m_searchPath;
    std::map<QByteArray, DirectoryListing> m_listings;
    std::map<QByteArray, std::optional<IconThemeIndex>> m_indexes; ///< by path
};
