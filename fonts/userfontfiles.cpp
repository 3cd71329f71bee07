#include "fonts/userfontfiles.h"

#include "platform/base/diagnostics.h"
#include "settings/backup.h"

#include <QDir>
#include <QFileInfo>

namespace {

void removeFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return;
    const QString copy = backUp(path);
    if (QFile::remove(path) && !copy.isEmpty())
        printDiagnostic(QStringLiteral("Removed %1, a copy is %2").arg(path, copy));
}

} // namespace

void removeUserFontconfigFiles()
{
    QString configuration = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
    if (configuration.isEmpty())
        configuration = QDir::homePath() + QLatin1String("/.config");
    removeFile(QDir::homePath() + QLatin1String("/.fonts.conf"));
    removeFile(configuration + QLatin1String("/fontconfig/fonts.conf"));
}
