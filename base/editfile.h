#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

/// The new content for the old one (empty for a missing file). Without one the file is left alone, and the edit
/// has failed for the reason that it gives itself.
using FileEdit = std::function<std::optional<QByteArray>(const QByteArray &content)>;

struct EditFileOptions {
    qint64 limit = 1 << 30;       ///< bytes; a larger file is refused
    unsigned newFileMode = 0666;  ///< less the umask
    bool removeWhenEmpty = false; ///< a file of which nothing is left goes
    /// Called before an existing file is replaced or removed.
    std::function<void(const QString &path)> beforeReplace;
};

/// Changes the file at \a path in one step that no other program of this user can come between: reads it under
/// the lock of its directory, which is made if need be, and replaces it when \a edit changes anything. What is no
/// regular file, or can't be read, is refused. On failure the old file stands whole and \a error says why.
[[nodiscard]] bool editFile(const QString &path, const FileEdit &edit, QString *error,
                            const EditFileOptions &options = {});
