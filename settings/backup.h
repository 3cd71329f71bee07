#pragma once

#include <QString>
#include <QVector>

/// Copies the file or directory tree at \a path byte for byte to `$XDG_STATE_HOME/qaz/backup/`
/// (`~/.local/state` when unset), before it is deleted or rewritten in a way that can lose something. The copy
/// is named by UTC time and file name; `manifest` there has a line for each copy with the original path. Of each
/// original the first copy, from before the program touched it, and the nine newest are kept. Symbolic links
/// inside a tree are copied as links. A copy that was not finished goes.
///
/// Returns the path of the copy, or an empty text when there was nothing to copy or the copy failed. A
/// failure is one line on standard error, and its reason stands in \a error, which is empty otherwise.
QString backUp(const QString &path, QString *error = nullptr);

struct Backup {
    QString copy;     ///< its path
    QString original; ///< the absolute path that was backed up
};

/// The copies that are kept, the oldest first.
QVector<Backup> backups();

/// Puts a copy back to where it was taken from, after a backup of what stands there. A file is replaced in one step and
/// through a link, as every file of the user's; a directory takes the place of the one that stands there. On failure
/// what stood there stands, and \a error says why.
[[nodiscard]] bool restoreCopy(const Backup &backup, QString *error);
