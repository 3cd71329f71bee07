#pragma once

#include <QString>

#include <optional>

/// What the header of a sound file tells.
struct SoundInfo {
    QString format;   ///< "WAV" or "AU"
    quint32 rate = 0; ///< samples a second
    int channels = 0;
    int bits = 0;       ///< of a sample
    double seconds = 0; ///< as far as the file goes
};

/// None for what is no wav or au file, and for one over 64 MB.
std::optional<SoundInfo> soundInfo(const QString &path);
