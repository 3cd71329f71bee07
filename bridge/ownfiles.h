#pragma once

#include <QString>

/// The path of the file \a name among the bridge's own: below `$XDG_CACHE_HOME/qaz/bridge`, which is made with mode 0700
/// unless \a isDryRun.
QString ownFile(const QString &name, bool isDryRun);
