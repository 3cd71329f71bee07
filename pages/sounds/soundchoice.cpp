#include "pages/sounds/soundchoice.h"

#include "settings/soundassignments.h"

#include <QFileInfo>

QString startOfChoice(const QString &value, bool hasTheme, const QString &soundsDirectory)
{
    const SoundKind kind = soundKind(value);
    const QFileInfo used(kind == SoundKind::BuiltIn ? soundsDirectory + QLatin1Char('/') + value : value);
    if ((kind == SoundKind::File || kind == SoundKind::BuiltIn) && QFileInfo(used.path()).isDir())
        return used.isFile() ? used.filePath() : used.path();
    const QString shared = hasTheme ? QStringLiteral("/usr/share/sounds") : soundsDirectory;
    return QFileInfo(shared).isDir() ? shared : QString();
}

QString assignmentForFile(const QString &path, const QString &soundsDirectory)
{
    const QFileInfo file(path);
    const QString directory = QFileInfo(file.path()).canonicalFilePath();
    // A name without a dot would be read as a theme's sound.
    const bool isBuiltIn = directory == QFileInfo(soundsDirectory).canonicalFilePath()
                           && soundKind(file.fileName()) == SoundKind::BuiltIn;
    return isBuiltIn ? file.fileName() : path;
}
