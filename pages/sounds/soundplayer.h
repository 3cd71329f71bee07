#pragma once

#include <QProcess>

/// Plays one sound file at a time with an external player.
class SoundPlayer : public QProcess
{
    Q_OBJECT
public:
    explicit SoundPlayer(const QString &program = QStringLiteral("/usr/bin/aplay"));
    /// Ends a running player.
    ~SoundPlayer() override { stop(); }

    void play(const QString &path);
    /// Ends the player, if one runs: ended() is not emitted.
    void stop();

signals:
    /// The player ended by itself, crashed or could not be started; what went wrong is one line on standard error.
    void ended();
};
