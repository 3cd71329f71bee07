#include "pages/sounds/soundplayer.h"

#include "base/diagnostics.h"

#include <QFileInfo>
#include <QSignalBlocker>

namespace {

constexpr int endTimeoutMs = 1000; // for a killed process to be gone

} // namespace

SoundPlayer::SoundPlayer(const QString &program)
{
    m_process.setProgram(program);
    connect(&m_process, &QProcess::started, this, &SoundPlayer::started);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &SoundPlayer::finish);
    connect(&m_process, &QProcess::errorOccurred, this, &SoundPlayer::reportFailure);
}

SoundPlayer::~SoundPlayer()
{
    stop();
}

bool SoundPlayer::isInstalled() const
{
    return QFileInfo::exists(program());
}

void SoundPlayer::play(const QString &path)
{
    stop();
    QStringList arguments(path);
    if (program().contains(QLatin1String("aplay")))
        arguments.prepend(QStringLiteral("-q"));
    m_process.setArguments(arguments);
    m_process.start(QIODevice::NotOpen);
}

void SoundPlayer::stop()
{
    if (!isPlaying())
        return;
    const QSignalBlocker blocker(m_process); // being killed is no failure
    m_process.kill();
    m_process.waitForFinished(endTimeoutMs);
}

void SoundPlayer::reportFailure(QProcess::ProcessError error)
{
    printDiagnostic(QStringLiteral("Can't play with %1: %2").arg(program(), m_process.errorString()));
    // Only this failure comes without an end.
    if (error == QProcess::FailedToStart)
        emit ended();
}

void SoundPlayer::finish(int exitCode, QProcess::ExitStatus status)
{
    // The player's own messages are not read; without this line a device that is missing would stay unknown.
    if (status == QProcess::NormalExit && exitCode != 0)
        printDiagnostic(QStringLiteral("%1 ended with status %2").arg(program()).arg(exitCode));
    emit ended();
}
