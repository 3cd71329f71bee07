#pragma once

#include "freedesktop/directorylisting.h"
#include "freedesktop/iconthemeindex.h"

#include <QByteArrayList>
#include <QHash>

#include <map>
#include <memory>

/// The directories and index files of icon and cursor themes. Each is read at most once in the life of the
/// object, which is short: what the user installs meanwhile is seen by the next one.
class ThemeDirectories
{
public:
    /// The object of the work in progress: the same one until control returns to the event loop and the last
    /// holder lets go.
    static std::shared_ptr<ThemeDirectories> current();

    /// The directory at \a path; an empty listing when it can't be read.
    const DirectoryListing &listing(const QByteArray &path);

    /// Where the theme \a name stands in \a bases, in their order.
    QByteArrayList locations(const QByteArrayList &bases, const QByteArray &name);

    /// The first index.theme in \a locations that can be read; null when there is none.
    const IconThemeIndex *index(const QByteArrayList &locations);

    /// The result of \a compute, which is called once.
    const QByteArrayList &searchPath(QByteArrayList (*compute)());

private:
    std::map<QByteArrayList (*)(), QByteArrayList> m_searchPaths;
    QHash<QByteArray, std::shared_ptr<const DirectoryListing>> m_listings;
    QHash<QByteArray, std::shared_ptr<const IconThemeIndex>> m_indexes; ///< by path; null: not readable
};
