#pragma once

/// Sets the line of \a parameter (with its colon: "Xft.dpi:") in the X resource file \a file to parameter +
/// \a separator + \a value, or removes it when \a value is null. Every other byte of the file stays; of
/// several lines of the parameter the last one, which counts, is set and the others are removed. A new line
/// is appended. The file is replaced in one step, and only when its content changes; a missing one is made.
/// The last argument is part of the desktop's interface and has no effect here. Returns false, after one
/// line on standard error, when the file can't be read or written: it is whole then.
bool setXrdbParameterInFile(const char *file, const char *parameter, const char *separator, const char *value,
                            bool reserved = false);
