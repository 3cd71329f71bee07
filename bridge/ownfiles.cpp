#include "bridge/ownfiles.h"

#include "base/xdgdirectories.h"

QString ownFile(const QString &name, bool isDryRun)
{
    const QString directory = xdgDirectory("XDG_CACHE_HOME", "/.cache") + QLatin1String("/qaz/bridge");
    if (!isDryRun)
        makeDirectories(directory);
    return directory + QLatin1Char('/') + name;
}
