#pragma once

#include <QString>

#include <functional>

enum class RestoreDepth { ThemeOnly, AllSettings };

/// Removes the settings files of \a depth, so that the desktop's defaults apply again; \a themeFile is the one
/// being edited. What is removed is backed up first. \a reportFailure is called with the path of what the user asked
/// to be removed and could not be, before the steps after it go on.
void removeSettings(RestoreDepth depth, const QString &themeFile,
                    const std::function<void(const QString &path)> &reportFailure);

/// Removes the directory \a path with everything in it; of a symbolic link only the link. Links inside are removed,
/// not followed. Fails without removing anything when the path is empty or holds the home directory.
[[nodiscard]] bool removeDirectory(const QString &path, const QString &home);
