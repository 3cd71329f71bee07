#pragma once

#include <QString>

/// The user's home directory: `$HOME`, else the password database's.
QString homeDirectory();

/// An XDG base directory: the absolute path in \a variable, else the home directory followed by \a fallback
/// ("/.config"). A relative path in the variable is invalid and ignored.
QString xdgDirectory(const char *variable, const char *fallback);
