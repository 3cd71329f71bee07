#pragma once

/// Looks for the program \a name in the directories of `PATH`, in order; a name with "/" stands for itself. Only
/// executable regular files count. The path found is written to \a buffer, which must hold PATH_MAX bytes; a
/// longer path is not found. Without a find the buffer holds an empty text.
bool FindFileInPATH(const char *name, char *buffer);
