#include "freedesktop/directorylisting.h"

#include "base/chandle.h"

#include <algorithm>
#include <memory>

#include <dirent.h>

DirectoryListing::DirectoryListing(const QByteArray &path)
{
    const std::unique_ptr<DIR, Release<::closedir>> directory(::opendir(path.constData()));
    while (const dirent *entry = directory ? ::readdir(directory.get()) : nullptr) {
        const QByteArray name(entry->d_name);
        if (name == "." || name == "..")
            continue;
        // Where a link leads is seen by whoever opens it; asking for each would cost a call a name.
        const bool isOpen = entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN;
        m_entries.push_back({name, isOpen || entry->d_type == DT_DIR, isOpen || entry->d_type == DT_REG});
    }
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry &left, const Entry &right) { return left.name < right.name; });
}

bool DirectoryListing::hasFile(const QByteArray &name) const
{
    const Entry *entry = find(name);
    return entry && entry->canBeFile;
}

bool DirectoryListing::hasDirectory(const QByteArray &name) const
{
    const Entry *entry = find(name);
    return entry && entry->canBeDirectory;
}

const DirectoryListing::Entry *DirectoryListing::find(const QByteArray &name) const
{
    const auto found = std::lower_bound(
        m_entries.begin(), m_entries.end(), name,
        [](const Entry &entry, const QByteArray &wanted) { return entry.name < wanted; });
    return found != m_entries.end() && found->name == name ? &*found : nullptr;
}
