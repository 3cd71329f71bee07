#pragma once

/// Whether a living process (no zombie) runs under \a name: the last path component of its executable or of its
/// argv[0]. Names further along a command line don't count. False for an empty name.
bool findInPS(const char *name);
