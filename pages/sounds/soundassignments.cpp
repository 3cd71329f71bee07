#include "pages/sounds/soundassignments.h"

#include "platform/qazsoundtheme.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

constexpr int soundBufferSize = 4096;

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

SoundKind soundKind(const QString &value)
{
    if (value.isEmpty())
        return SoundKind::None;
    if (value.startsWith(QLatin1Char('/')))
        return SoundKind::File;
    return value.contains(QLatin1Char('.')) ? SoundKind::BuiltIn : SoundKind::ThemeSound;
}

QString defaultSound(const QString &key, bool fromTheme)
{
    const auto event = std::find_if(
        std::begin(soundEvents), std::end(soundEvents),
        [&key](const SoundEvent &known) { return key == QLatin1String(known.key); });
    if (event == std::end(soundEvents))
        return {};
    return QString::fromLatin1(fromTheme ? event->themeSound : event->builtInFile);
}

QString themeSoundFile(QazSoundTheme *theme, const QString &name)
{
    std::array<char, soundBufferSize> buffer{};
    if (!theme || !theme->getSound(name.toLocal8Bit().constData(), "", "", buffer.data()))
        return {};
    return QFile::decodeName(buffer.data());
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

PlayableSound playableSound(const QString &value, QazSoundTheme *theme, const QString &soundsDirectory)
{
    const SoundKind kind = soundKind(value);
    if (kind == SoundKind::File)
        return {value};
    if (!theme || kind == SoundKind::BuiltIn)
        return {soundsDirectory + QLatin1Char('/') + value};
    const QString file = themeSoundFile(theme, value);
    if (file.isEmpty())
        return {value};
    return {file, file.endsWith(QLatin1String(".wav"))};
}

QString startDirectory(const QString &value, bool hasTheme, const QString &soundsDirectory)
{
    QString directory;
    if (soundKind(value) == SoundKind::File)
        directory = QFileInfo(value).path();
    else if (soundKind(value) == SoundKind::BuiltIn)
        directory = soundsDirectory;
    if (!directory.isEmpty() && QFileInfo(directory).isDir())
        return directory;
    return hasTheme ? QStringLiteral("/usr/share/sounds") : soundsDirectory;
}

QString assignmentForFile(const QString &path, const QString &soundsDirectory)
{
    const QFileInfo file(path);
    // A name without a dot would be read as a theme's sound.
    const bool isBuiltIn = isSameDirectory(file.path(), soundsDirectory)
                           && soundKind(file.fileName()) == SoundKind::BuiltIn;
    return isBuiltIn ? file.fileName() : path;
}
