#include "freedesktop/directorylisting.h"

#include "base/chandle.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include <dirent.h>

DirectoryListing::DirectoryListing(const QByteArray &path)
{
    const std::unique_ptr<DIR, Release<::closedir>> directory(::opendir(path.constData()));
    if (!directory)
        return;
    while (const dirent *entry = ::readdir(directory.get())) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        // Where a link leads is seen by whoever opens it; asking for each would cost a call a name.
        const bool isOpen = entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN;
        m_entries.push_back({nullptr, isOpen || entry->d_type == DT_DIR, isOpen || entry->d_type == DT_REG});
        m_names.append(entry->d_name, std::strlen(entry->d_name) + 1);
    }
    const char *name = m_names.c_str();
    for (Entry &entry : m_entries) {
        entry.name = name;
        name += std::strlen(name) + 1;
    }
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry &left, const Entry &right) { return std::strcmp(left.name, right.name) < 0; });
}

bool DirectoryListing::hasFile(const char *name) const
{
    const Entry *entry = find(name);
    return entry && entry->canBeFile;
}

bool DirectoryListing::hasDirectory(const char *name) const
{
    const Entry *entry = find(name);
    return entry && entry->canBeDirectory;
}

const DirectoryListing::Entry *DirectoryListing::find(const char *name) const
{
    const auto found = std::lower_bound(
        m_entries.begin(), m_entries.end(), name,
        [](const Entry &entry, const char *wanted) { return std::strcmp(entry.name, wanted) < 0; });
    return found != m_entries.end() && std::strcmp(found->name, name) == 0 ? &*found : nullptr;
}
