#include "bridge/sounds.h"

#include "bridge/programs.h"
#include "platform/qazsoundtheme.h"
#include "settings/directories.h"
#include "settings/soundassignments.h"
#include "settings/textvalues.h"

#include <QFileInfo>
#include <QProcess>
#include <QTimer>

Sounds::Sounds(const Session &session)
    : m_session(session)
{}

Sounds::~Sounds() = default;

void Sounds::apply()
{
    m_theme.reset();
}

QString Sounds::fileOf(const char *key)
{
    const QString assignment = m_session.values.text(key);
    if (assignment.isEmpty())
        return {};
    const QByteArray theme = m_session.values.text("SoundTheme").toLocal8Bit();
    if (!m_theme && !theme.isEmpty() && !theme.contains('/')) {
        m_theme = std::make_unique<QazSoundTheme>(theme.constData());
        m_theme->load();
    }
    const PlayableSound sound = playableSound(assignment, m_theme.get(),
                                              directoryPath(DirectoryKind::Sounds));
    return sound.isPlayable && sound.path.startsWith(QLatin1Char('/')) && QFileInfo(sound.path).isFile()
               ? sound.path
               : QString();
}

void Sounds::play(const char *key)
{
    constexpr int mostAtOnce = 3;
    constexpr int longestMs = 10000;
    if (m_playing >= mostAtOnce || !countsAsTrue(m_session.values.text("EnableSound")))
        return;
    const QString file = fileOf(key);
    if (file.isEmpty())
        return;
    QProcess *player = m_session.programs.start({QStringLiteral("aplay"), QStringLiteral("-q"), file},
                                                [this](bool) { --m_playing; });
    if (!player)
        return;
    ++m_playing;
    QTimer::singleShot(longestMs, player, &QProcess::kill);
}
