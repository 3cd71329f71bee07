#include "base/xdgdirectories.h"

#include <QFile>

#include <pwd.h>
#include <unistd.h>

QString homeDirectory()
{
    const QByteArray home = qgetenv("HOME");
    if (!home.isEmpty())
        return QFile::decodeName(home);
    const passwd *entry = ::getpwuid(::getuid());
    return entry && entry->pw_dir ? QFile::decodeName(entry->pw_dir) : QString();
}

QString xdgDirectory(const char *variable, const char *fallback)
{
    const QByteArray named = qgetenv(variable);
    if (named.startsWith('/'))
        return QFile::decodeName(named);
    return homeDirectory() + QLatin1String(fallback);
}
