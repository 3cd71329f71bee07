#pragma once

#include <QString>
#include <QVector>

/// A line of the list of backups.
struct ManifestEntry {
    QString copy;     ///< file name beside the manifest
    QString original; ///< absolute path
};

/// The entries of the file \a manifest, the oldest first; none when it can't be read.
QVector<ManifestEntry> readManifest(const QString &manifest);

/// Replaces the file by \a entries. No path can make a second line.
[[nodiscard]] bool writeManifest(const QString &manifest, const QVector<ManifestEntry> &entries,
                                 QString *error);
