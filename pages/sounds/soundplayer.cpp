#include "pages/sounds/soundplayer.h"

#include "base/diagnostics.h"

#include <QFileInfo>

namespace {

constexpr int endTimeoutMs = 1000; // for a killed process to be gone

QStringList playerArguments(const QString &program, const QString &path)
{
    QStringList arguments;
    if (program.contains(QLatin1String("aplay")))
        arguments << QStringLiteral("-q");
    return arguments << path;
}

} // namespace

SoundPlayer::SoundPlayer(QObject *owner, const QString &program)
    : m_owner(owner)
    , m_program(program)
{}

SoundPlayer::~SoundPlayer()
{
    stop();
}

bool SoundPlayer::isInstalled() const
{
    return QFileInfo::exists(m_program);
}

bool SoundPlayer::isPlaying() const
{
    return m_process && m_process->state() != QProcess::NotRunning;
}

void SoundPlayer::play(const QString &path)
{
    stop();
    m_process = new QProcess(m_owner);
    connect(m_process, &QProcess::started, this, &SoundPlayer::started);
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, &SoundPlayer::finish);
    connect(m_process, &QProcess::errorOccurred, this, &SoundPlayer::reportFailure);
    m_process->start(m_program, playerArguments(m_program, path), QIODevice::NotOpen);
}

void SoundPlayer::stop()
{
    if (!m_process)
        return;
    // What a killed player still tells must not end the next one.
    m_process->disconnect(this);
    if (isPlaying()) {
        m_process->kill();
        m_process->waitForFinished(endTimeoutMs);
    }
    m_process.clear();
}

void SoundPlayer::reportFailure(QProcess::ProcessError error)
{
    printDiagnostic(QStringLiteral("Can't play with %1: %2").arg(m_program, m_process->errorString()));
    // Only this failure comes without an end.
    if (error == QProcess::FailedToStart)
        emit ended();
}

void SoundPlayer::finish(int exitCode, QProcess::ExitStatus status)
{
    // The player's own messages are not read; without this line a device that is missing would stay unknown.
    if (status == QProcess::NormalExit && exitCode != 0)
        printDiagnostic(QStringLiteral("%1 ended with status %2").arg(m_program).arg(exitCode));
    emit ended();
}
