#include "bridge/ownfiles.h"

#include "base/xdgdirectories.h"

QString ownFile(const QString &name)
{
    const QString directory = xdgDirectory("XDG_CACHE_HOME", "/.cache") + QLatin1String("/qaz/bridge");
    makeDirectories(directory);
    return directory + QLatin1Char('/') + name;
}
