#pragma once

#include "base/descriptor.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

/// The lock under which programs of this user read, change and replace the files of a directory in turn. It
/// ends with the process. Nobody else can hold it: it is a file of mode 0600 in a directory of the user's own,
/// named after the directory to be changed. A process that asks for a lock that it holds waits in vain.
class FileLock
{
public:
    /// Waits at most 2 s for the lock on the directory of the file that \a path leads to, which is made if need be.
    explicit FileLock(const QString &path);

    /// False when the directory can't be made or another program kept the lock too long; see error().
    bool isHeld() const { return m_error.isNull(); }
    /// Null while the lock is held.
    QString error() const { return m_error; }

private:
    QString m_error; // set while the file is opened
    Descriptor m_file;
};

/// The new content for the old one (empty for a missing file). Without one the file is left alone, and the edit
/// has failed for the reason that it gives itself.
using FileEdit = std::function<std::optional<QByteArray>(const QByteArray &content)>;

struct EditFileOptions {
    qint64 limit = 1 << 30;       ///< bytes; a larger file is refused
    unsigned newFileMode = 0666;  ///< less the umask
    bool removeWhenEmpty = false; ///< a file of which nothing is left goes
    /// Called before an existing file is replaced or removed.
    std::function<void(const QString &path)> beforeReplace = {};
};

/// Changes the file at \a path in one step that no other program of this user can come between: reads it under
/// its FileLock and replaces it when \a edit changes anything. What is no
/// regular file, or can't be read, is refused. On failure the old file stands whole and \a error says why.
[[nodiscard]] bool editFile(const QString &path, const FileEdit &edit, QString *error,
                            const EditFileOptions &options = {});

/// The same; a failure is one line on standard error.
bool editFileOrTell(const QString &path, const FileEdit &edit, const EditFileOptions &options = {});
