#pragma once

#include <QString>

/// The path of the file \a name among the bridge's own: below `$XDG_CACHE_HOME/qaz/bridge`, made with mode 0700.
QString ownFile(const QString &name);
