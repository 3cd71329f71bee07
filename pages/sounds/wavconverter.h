#pragma once

#include <QString>

/// Converts the ogg files of a sound theme to wav files beside them, with the rights that this takes.
class WavConverter
{
public:
    /// How long convert() waits, in milliseconds.
    static constexpr int timeLimit = 30000;

    explicit WavConverter(int limit = timeLimit)
        : m_limit(limit)
    {}

    /// Converts the files below \a directory and returns when that has ended, can't be started, or the time is
    /// up: it goes on alone then. Shows the wait cursor; windows are still drawn, but take no input.
    void convert(const QString &directory) const;

private:
    int m_limit;
};

/// The shell command that converts the files below \a directory.
QString conversionCommand(const QString &directory);
