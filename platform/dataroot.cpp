#include "platform/dataroot.h"

#include <QDir>
#include <QFile>

#include <pwd.h>
#include <unistd.h>

namespace {

QString executableDirectory()
{
    // Asked of the kernel: the application object, which knows it too, may not exist yet.
    const QString executable = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    return executable.left(executable.lastIndexOf(QLatin1Char('/')));
}

} // namespace

QString dataRoot()
{
    const QByteArray named = qgetenv("QAZ_DATA_DIR");
    if (!named.isEmpty())
        return QDir::cleanPath(QFile::decodeName(named));
    QString installed = QDir::cleanPath(executableDirectory() + QLatin1String("/../share/qaz"));
#ifdef QAZ_SOURCE_DATA_DIR
    if (!QFile::exists(installed))
        return QStringLiteral(QAZ_SOURCE_DATA_DIR);
#endif
    return installed;
}

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
