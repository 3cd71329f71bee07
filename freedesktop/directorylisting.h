#pragma once

#include <QByteArray>

#include <string>
#include <vector>

/// The names in a directory, read once. A directory that can't be read has none.
class DirectoryListing
{
public:
    struct Entry {
        const char *name;    ///< in the file system's own bytes; belongs to the listing
        bool canBeDirectory; ///< a directory, or a link that may lead to one
        bool canBeFile;      ///< a regular file, or a link that may lead to one
    };

    explicit DirectoryListing(const QByteArray &path);
    DirectoryListing(const DirectoryListing &) = delete; // the entries point into it
    DirectoryListing &operator=(const DirectoryListing &) = delete;

    /// In the order of the names' bytes; "." and ".." are left out.
    const std::vector<Entry> &entries() const { return m_entries; }
    bool hasFile(const char *name) const;
    bool hasDirectory(const char *name) const;

private:
    const Entry *find(const char *name) const;

    std::string m_names; ///< each ended by NUL: one block for a directory of thousands of files
    std::vector<Entry> m_entries;
};
