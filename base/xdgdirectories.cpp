#include "base/xdgdirectories.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>

#include <cerrno>
#include <filesystem>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Whether \a path is a directory of the user's in which others have none of the rights \a refused.
bool isOwnDirectory(const QString &path, mode_t refused)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
           && status.st_uid == ::geteuid() && (status.st_mode & refused) == 0;
}

} // namespace

QString homeDirectory()
{
    const QByteArray home = qgetenv("HOME");
    if (!home.isEmpty())
        return QFile::decodeName(home);
    const passwd *entry = ::getpwuid(::getuid());
    return entry ? QFile::decodeName(entry->pw_dir) : QString();
}

QString xdgDirectory(const char *variable, const char *fallback)
{
    const QByteArray named = qgetenv(variable);
    if (named.startsWith('/'))
        return QDir::cleanPath(QFile::decodeName(named));
    return homeDirectory() + QLatin1String(fallback);
}

QStringList xdgDataDirectories()
{
    QByteArray system = qgetenv("XDG_DATA_DIRS");
    if (system.isEmpty())
        system = "/usr/local/share:/usr/share";
    QStringList directories{xdgDirectory("XDG_DATA_HOME", "/.local/share")};
    for (const QByteArray &directory : system.split(':')) {
        if (directory.startsWith('/'))
            directories.append(QDir::cleanPath(QFile::decodeName(directory)));
    }
    directories.removeDuplicates();
    return directories;
}

QString privateDirectory()
{
    QString runtime = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
    if (runtime.startsWith(QLatin1Char('/')) && isOwnDirectory(runtime, 077))
        return runtime;
    QString own = xdgDirectory("XDG_CACHE_HOME", "/.cache") + QLatin1String("/qaz");
    return makeDirectories(own) && isOwnDirectory(own, 022) ? own : QString();
}

bool makeDirectories(const QString &path)
{
    const auto putBack = qScopeGuard([mask = ::umask(0077)] { ::umask(mask); });
    std::error_code failure;
    std::filesystem::create_directories(QFile::encodeName(QDir::cleanPath(path)).constData(), failure);
    errno = failure.value();
    return !failure;
}
