#pragma once

#include <QObject>
#include <QPointer>
#include <QProcess>

/// Plays one sound file at a time with an external player.
class SoundPlayer : public QObject
{
    Q_OBJECT
public:
    /// Runs \a program; its processes become children of \a owner, which must outlive the player.
    explicit SoundPlayer(QObject *owner, const QString &program = QStringLiteral("/usr/bin/aplay"));
    /// Ends a running player.
    ~SoundPlayer() override;

    QString program() const { return m_program; }
    bool isInstalled() const;
    bool isPlaying() const;

    /// Starts the player on the file at \a path; a player that still runs is ended first.
    void play(const QString &path);
    /// Ends the player, if one runs, and forgets it: ended() is not emitted.
    void stop();

signals:
    void started();
    /// The player ended by itself, crashed or could not be started.
    void ended();

private:
    void reportFailure(QProcess::ProcessError error);
    void finish(int exitCode, QProcess::ExitStatus status);

    QObject *m_owner;
    QString m_program;
    QPointer<QProcess> m_process;
};
