#pragma once

#include "settings/themeedit.h"
#include "tools/qaz-theme/arguments.h"

// Commands on the values of theme files.

Status getValues(const Arguments &arguments);
Status setValues(const Arguments &arguments);
Status unsetKeys(const Arguments &arguments);
Status listKeys(const Arguments &arguments);
Status diffFiles(const Arguments &arguments);
Status applyFile(const Arguments &arguments);
Status complete(const Arguments &arguments);

/// Whether \a path can be read as a theme file, existing or not; complains otherwise.
bool isReadable(const QString &path);

/// Whether there is a readable file at \a path; complains otherwise.
bool isThere(const QString &path);

/// Prints each of \a errors; Misuse when there is one.
Status complainOf(const QStringList &errors);

/// Prints \a changes as the arguments say and announces those of them that are changes.
void tell(const ThemeChanges &changes, const Arguments &arguments);

/// Stores, prints and announces what \a values, which fit, change; with -n only prints it.
Status storeValues(const ThemeValues &values, const Arguments &arguments);
