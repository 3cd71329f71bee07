#include "platform/findfileinpath.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <climits>
#include <cstring>

namespace {

QString findProgram(const QString &name)
{
    // The kit looks for a relative path below each directory of PATH, too.
    if (name.contains(QLatin1Char('/')) && !QFileInfo(name).isAbsolute())
        return QStandardPaths::findExecutable(QFileInfo(name).absoluteFilePath());
    return QStandardPaths::findExecutable(name);
}

} // namespace

bool FindFileInPATH(const char *name, char *buffer)
{
    const QByteArray path = QFile::encodeName(findProgram(QFile::decodeName(name)));
    const bool isFound = !path.isEmpty() && path.size() < PATH_MAX;
    std::strcpy(buffer, isFound ? path.constData() : "");
    return isFound;
}
