#pragma once

#include <QByteArray>
#include <QString>

enum class FileState {
    Missing,   ///< nothing stands at the path (or a dangling link does)
    Regular,   ///< a regular file, read completely
    Unreadable ///< something that is not a regular file, or one that can't be read
};

/// What stands in a file: the content is only filled for FileState::Regular, the reason only for Unreadable.
struct FileContent {
    FileState state = FileState::Missing;
    QByteArray content;
    QString error;
};

/// Reads the whole regular file at \a path, of at most \a limit bytes by its size. Never blocks on a FIFO or a device, and
/// maps nothing into memory: the file may shrink meanwhile.
FileContent readRegularFile(const QString &path, qint64 limit = 1 << 30);

/// What can be made anew when the machine has stopped at once need not wait for the disk; whoever reads it then
/// notices that it is cut off.
enum class Durability { Synced, Remade };

/// Replaces \a path by \a content in one step: a temporary file beside it is synced and renamed over it.
/// A symbolic link is followed, mode, ownership and extended attributes stay, missing directories are made;
/// a new file gets \a newFileMode less the umask, which never keeps it from its owner. On failure the old file
/// stands whole, \a error says why. Temporary files that a killed program left there go.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &content, QString *error,
                               unsigned newFileMode = 0666, Durability durability = Durability::Synced);

/// Gives the open file \a newFile the mode, ownership and extended attributes of the file at \a oldPath, or
/// \a newFileMode less the umask when there is none. False (see errno) when the owner can't be kept.
[[nodiscard]] bool takeOverAttributes(int newFile, const QByteArray &oldPath, unsigned newFileMode);

/// \a path with every symbolic link of its last component followed, also to a file that doesn't exist yet;
/// empty for a loop of links.
QString linkTarget(const QString &path);

/// The same, with its directory made if need be; empty with the reason in \a error.
QString writableTarget(const QString &path, QString *error);

/// Removes this user's temporary files ".qaz-XXXXXX" and directories ".qaz-word-XXXXXX" in \a directory that are older
/// than an hour.
void removeStaleTemporaries(const QString &directory);
