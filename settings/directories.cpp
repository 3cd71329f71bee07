#include "settings/directories.h"

#include "platform/getqazdir.h"
#include "platform/qazinit.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

QString directoryPath(DirectoryKind kind)
{
    return QString::fromLocal8Bit(GetQazDir(int(kind)));
}

QString defaultThemeFile()
{
    const std::unique_ptr<char[]> suffix(qazSessionConfigSuffix(0));
    return directoryPath(DirectoryKind::ThemeFile) + QLatin1String("/current.themerc")
           + QString::fromLocal8Bit(suffix.get());
}

QString chooseThemeFile(int argc, char **argv)
{
    if (argc == 2) {
        const QFileInfo named(QFile::decodeName(argv[1]));
        if (named.isFile())
            return named.absoluteFilePath();
    }
    return defaultThemeFile();
}
