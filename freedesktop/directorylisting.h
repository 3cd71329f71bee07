#pragma once

#include <QByteArray>

#include <vector>

/// The names in a directory, read once. A directory that can't be read has none.
class DirectoryListing
{
public:
    struct Entry {
        QByteArray name;     ///< in the file system's own bytes
        bool canBeDirectory; ///< a directory, or a link that may lead to one
        bool canBeFile;      ///< a regular file, or a link that may lead to one
    };

    explicit DirectoryListing(const QByteArray &path);

    /// In the order of the names' bytes; "." and ".." are left out.
    const std::vector<Entry> &entries() const { return m_entries; }
    bool hasFile(const QByteArray &name) const;
    bool hasDirectory(const QByteArray &name) const;

private:
    const Entry *find(const QByteArray &name) const;

    std::vector<Entry> m_entries;
};
