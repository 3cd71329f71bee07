#include "pages/sounds/soundplayer.h"

#include "base/diagnostics.h"

#include <QSignalBlocker>

SoundPlayer::SoundPlayer(const QString &program)
{
    setProgram(program);
    connect(this, &QProcess::errorOccurred, this, [this](ProcessError error) {
        printDiagnostic(QStringLiteral("Can't play with %1: %2").arg(this->program(), errorString()));
        if (error == FailedToStart) // the only failure without an end
            emit ended();
    });
    const auto finished = qOverload<int, ExitStatus>(&QProcess::finished);
    connect(this, finished, this, [this](int exitCode, ExitStatus status) {
        // The player's own messages are not read; without this line a device that is missing would stay unknown.
        if (status == NormalExit && exitCode != 0)
            printDiagnostic(QStringLiteral("%1 ended with status %2").arg(this->program()).arg(exitCode));
        emit ended();
    });
}

void SoundPlayer::play(const QString &path)
{
    setArguments({QStringLiteral("-q"), path});
    start(QIODevice::NotOpen);
}

void SoundPlayer::stop()
{
    const QSignalBlocker blocker(this); // being killed is no failure
    kill();
    waitForFinished(1000);
}
