#pragma once

#include <QString>

/// The root of the desktop's shared data, the first of: `$QAZ_DATA_DIR`; `../share/qaz` beside the
/// executable's directory, if it exists; in development builds the source tree's data directory; else the
/// second one's path all the same.
QString dataRoot();

/// The user's home directory: `$HOME`, else the password database's.
QString homeDirectory();

/// An XDG base directory: the absolute path in \a variable, else the home directory followed by \a fallback
/// ("/.config"). A relative path in the variable is invalid and ignored.
QString xdgDirectory(const char *variable, const char *fallback);
