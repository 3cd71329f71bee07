#pragma once

#include <QProcess>

/// Plays one sound file at a time with an external player.
class SoundPlayer : public QObject
{
    Q_OBJECT
public:
    explicit SoundPlayer(const QString &program = QStringLiteral("/usr/bin/aplay"));
    /// Ends a running player.
    ~SoundPlayer() override;

    QString program() const { return m_process.program(); }
    bool isInstalled() const;
    bool isPlaying() const { return m_process.state() != QProcess::NotRunning; }

    /// Starts the player on the file at \a path; a player that still runs is ended first.
    void play(const QString &path);
    /// Ends the player, if one runs: ended() is not emitted.
    void stop();

signals:
    void started();
    /// The player ended by itself, crashed or could not be started; what went wrong is one line on standard error.
    void ended();

private:
    void reportFailure(QProcess::ProcessError error);
    void finish(int exitCode, QProcess::ExitStatus status);

    QProcess m_process;
};
