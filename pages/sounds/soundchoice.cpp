#include "pages/sounds/soundchoice.h"

#include "settings/soundassignments.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

bool isSameDirectory(const QString &one, const QString &other)
{
    if (QDir::cleanPath(one) == QDir::cleanPath(other))
        return true;
    const QString canonical = QFileInfo(one).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(other).canonicalFilePath();
}

void markFormat(const QString &path, SoundFormats *formats)
{
    if (path.endsWith(QLatin1String(".oga")) || path.endsWith(QLatin1String(".ogg")))
        formats->ogg = true;
    if (!path.endsWith(QLatin1String(".wav")) && !path.endsWith(QLatin1String(".au")))
        formats->nonWav = true;
}

} // namespace

QString defaultSound(const QString &key, bool fromTheme)
{
    const auto event = std::find_if(
        std::begin(soundEvents), std::end(soundEvents),
        [&key](const SoundEvent &known) { return key == QLatin1String(known.key->name); });
    if (event == std::end(soundEvents))
        return {};
    return QString::fromLatin1(fromTheme ? event->themeSound : event->builtInFile);
}

QString usableSound(const QString &name, QazSoundTheme *theme, const QString &soundsDirectory,
                    SoundFormats *formats)
{
    QString path;
    switch (soundKind(name)) {
    case SoundKind::None:
        break;
    case SoundKind::File:
        path = name;
        break;
    case SoundKind::BuiltIn:
        path = soundsDirectory + QLatin1Char('/') + name;
        break;
    case SoundKind::ThemeSound:
        path = themeSoundFile(theme, name);
        if (!path.isEmpty())
            markFormat(path, formats);
        break;
    }
    return !path.isEmpty() && QFileInfo::exists(path) ? name : QString();
}

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
    // A name without a dot would be read as a theme's sound.
    const bool isBuiltIn = isSameDirectory(file.path(), soundsDirectory)
                           && soundKind(file.fileName()) == SoundKind::BuiltIn;
    return isBuiltIn ? file.fileName() : path;
}
