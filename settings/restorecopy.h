#pragma once

#include "settings/backup.h"

/// Puts a copy back to where it was taken from, after a backup of what stands there. A file is replaced in one step and
/// through a link, as every file of the user's; a directory takes the place of the one that stands there. On failure
/// what stood there stands, and \a error says why.
[[nodiscard]] bool restoreCopy(const Backup &backup, QString *error);
