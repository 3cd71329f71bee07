#pragma once

#include <QString>

#include <memory>

/// A sound that the program plays itself.
class SoundOutput
{
public:
    virtual ~SoundOutput() = default;
    /// Starts the sound, from the beginning, and returns at once.
    virtual void play() = 0;
    virtual void stop() = 0;
};

/// Plays the wav file \a path with QSound. Null when the module that knows Qt Multimedia can't be loaded.
std::unique_ptr<SoundOutput> createQSound(const QString &path);
