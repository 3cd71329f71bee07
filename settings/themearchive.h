#pragma once

#include <QString>
#include <QVector>

/// A regular file in an archive, and where its content stands on disk.
struct ArchiveFile {
    QString name; ///< "theme.themerc", or a file's name behind the name of its directory: "sounds/a.wav"
    QString path;
};

/// Writes \a files as a POSIX tar with gzip to the new file \a path.
[[nodiscard]] bool writeArchive(const QString &path, const QVector<ArchiveFile> &files, QString *error);

/// Unpacks the archive at \a path into the empty \a directory and lists what it held. Nothing in it is trusted: every
/// file must stand in the archive itself or in one of \a directories, under a plain name of its own; there may be no
/// links, devices or other directories, at most 2,000 files and 256 MB. False with the reason for any other archive, also
/// one that is cut off; what was unpacked by then stays in \a directory.
[[nodiscard]] bool readArchive(const QString &path, const QString &directory, const QStringList &directories,
                               QVector<ArchiveFile> *files, QString *error);
