#pragma once

#include <QString>
#include <QStringList>

/// The user's home directory: `$HOME`, else the password database's.
QString homeDirectory();

/// An XDG base directory: the absolute path in \a variable, else the home directory followed by \a fallback
/// ("/.config"). A relative path in the variable is invalid and ignored.
QString xdgDirectory(const char *variable, const char *fallback);

/// `$XDG_DATA_HOME` and the absolute paths in `$XDG_DATA_DIRS` (or their defaults), cleaned, each once, in the
/// order of their weight.
QStringList xdgDataDirectories();

/// A directory of the user's own, for locks and sockets: `$XDG_RUNTIME_DIR` if nobody else may enter it, else
/// `$XDG_CACHE_HOME/qaz`, which is made. Empty when that can't be made, is a link or belongs to somebody else.
QString privateDirectory();

/// Makes \a path and the directories above it that are missing, each with mode 0700 whatever the umask; what
/// exists keeps its mode. False (see errno) when no directory stands at \a path afterwards.
bool makeDirectories(const QString &path);
