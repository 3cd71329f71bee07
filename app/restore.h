#pragma once

#include <QString>

/// Whether the directory at \a path may be removed with everything in it: an absolute path, and neither the root, nor
/// \a home, nor a directory that holds it. Looks at the texts alone: links are to be resolved before.
bool mayRemoveTree(const QString &path, const QString &home);
