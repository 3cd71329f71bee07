#include "bridge/session.h"

#include "base/atomicfile.h"
#include "base/xdgdirectories.h"
#include "bridge/programs.h"

Values::Values(const QString &themeFile)
    : m_file(themeFile)
{
    refresh();
}

QString Values::text(const char *key, const char *defaultText) const
{
    return m_announced.value(QLatin1String(key), fileText(key, defaultText));
}

QString Values::fileText(const char *key, const char *defaultText) const
{
    return m_file.value(QLatin1String(key), QLatin1String(defaultText)).toString();
}

int Values::number(const char *key, int limit, const char *defaultText) const
{
    return qBound(0, text(key, defaultText).toInt(), limit);
}

bool Session::write(const QString &path, const QByteArray &content) const
{
    QString error;
    if (options.dryRun || replaceFile(path, content, &error, 0600))
        return true;
    tell(QStringLiteral("Can't write %1: %2").arg(path, error));
    return false;
}

QString ownFile(const QString &name)
{
    return xdgDirectory("XDG_CACHE_HOME", "/.cache") + QLatin1String("/qaz/bridge/") + name;
}
