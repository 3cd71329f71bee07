#include "platform/findfileinpath.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <climits>
#include <cstring>

bool FindFileInPATH(const char *name, char *buffer)
{
    QString program = QFile::decodeName(name);
    // The kit would look for a relative path below each directory of PATH, too.
    if (program.contains(QLatin1Char('/')))
        program = QFileInfo(program).absoluteFilePath();
    const QByteArray path = QFile::encodeName(QStandardPaths::findExecutable(program));
    const bool isFound = !path.isEmpty() && path.size() < PATH_MAX;
    std::strcpy(buffer, isFound ? path.constData() : "");
    return isFound;
}
