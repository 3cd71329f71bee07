#pragma once

#include "bridge/session.h"

#include <memory>

class QazSoundTheme;
class QString;

/// Plays the sounds that the values assign to events, never more than three at once.
class Sounds
{
public:
    explicit Sounds(const Session &session);
    ~Sounds();

    /// Plays the sound that is stored under \a key; nothing when there is none or sounds are off.
    void play(const char *key);
    /// The assignments or the theme have changed.
    void apply();
    bool isSilent() const { return m_playing == 0; }

private:
    QString fileOf(const char *key);

    Session m_session;
    std::unique_ptr<QazSoundTheme> m_theme;
    int m_playing = 0;
};
