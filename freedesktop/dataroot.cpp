#include "freedesktop/dataroot.h"

#include <QDir>
#include <QFile>

QString dataRoot()
{
    const QByteArray named = qgetenv("QAZ_DATA_DIR");
    if (!named.isEmpty())
        return QDir::cleanPath(QFile::decodeName(named));
    // Asked of the kernel: the application object, which knows it too, may not exist yet.
    const QString executable = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    QString installed = QDir::cleanPath(executable + QLatin1String("/../../share/qaz"));
#ifdef QAZ_SOURCE_DATA_DIR
    if (!QFile::exists(installed))
        return QStringLiteral(QAZ_SOURCE_DATA_DIR);
#endif
    return installed;
}
