#include "platform/findfileinpath.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <climits>
#include <cstring>

bool FindFileInPATH(const char *name, char *buffer)
{
    QString program = QFile::decodeName(name);
    if (program.contains(
            QLatin1Char('/'))) // a relative path would be looked for below each directory of PATH, too
        program = QFileInfo(program).absoluteFilePath();
    const QByteArray path = QFile::encodeName(QStandardPaths::findExecutable(program));
    const bool isFound = !path.isEmpty() && path.size() < PATH_MAX;
    std::strcpy(buffer, isFound ? path.constData() : "");
    return isFound;
}
