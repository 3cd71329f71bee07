#pragma once

#include "settings/themeedit.h"
#include "tools/qaz-theme/arguments.h"

// On the values of theme files.
Status getValues(const Arguments &arguments);
Status setValues(const Arguments &arguments);
Status unsetKeys(const Arguments &arguments);
Status listKeys(const Arguments &arguments);
Status diffFiles(const Arguments &arguments);
Status applyFile(const Arguments &arguments);
Status complete(const Arguments &arguments);

// On packed themes.
Status pack(const Arguments &arguments);
Status unpack(const Arguments &arguments);

// On the copies that were kept of removed and rewritten files.
Status listBackups(const Arguments &arguments);
Status restore(const Arguments &arguments);

/// Whether the theme file at \a path can be read, or is missing and need not exist; complains otherwise.
bool isReadable(const QString &path, bool mustExist = false);

/// Prints each of \a errors, of which there is one.
Status complainOf(const QStringList &errors);

/// Prints why a file can't be read or written.
Status fail(const QString &reason);

/// Prints \a changes as the arguments say and announces those of them that are changes.
Status tell(const ThemeChanges &changes, const Arguments &arguments);

/// Stores, prints and announces what \a values, which fit, change; with -n only prints it.
Status storeValues(const ThemeValues &values, const Arguments &arguments);
