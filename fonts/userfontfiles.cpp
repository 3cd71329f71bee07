#include "fonts/userfontfiles.h"

#include "base/diagnostics.h"
#include "fonts/fontsfile.h"
#include "settings/backup.h"
#include "settings/directories.h"

#include <QFile>
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
    removeFile(directoryPath(DirectoryKind::Home) + QLatin1String("/.fonts.conf"));
    removeFile(userFontsFile());
}
