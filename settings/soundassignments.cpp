#include "settings/soundassignments.h"

#include "platform/qazsoundtheme.h"

#include <QFile>

#include <array>

SoundKind soundKind(const QString &value)
{
    if (value.startsWith(QLatin1Char('/')))
        return SoundKind::File;
    return value.contains(QLatin1Char('.')) ? SoundKind::BuiltIn : SoundKind::ThemeSound;
}

QString themeSoundFile(QazSoundTheme *theme, const QString &name)
{
    std::array<char, 4096> buffer{};
    if (!theme || !theme->getSound(name.toLocal8Bit().constData(), "", "", buffer.data()))
        return {};
    return QFile::decodeName(buffer.data());
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
