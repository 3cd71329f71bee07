#pragma once

#include <QString>

class QazSoundTheme;

/// The default assignment of the event with the settings \a key: its sound in themes or its built-in file. Empty
/// for an event without one and for an unknown key.
QString defaultSound(const QString &key, bool fromTheme);

/// What a theme's files would need before all of them can be played.
struct SoundFormats {
    bool ogg = false;    ///< some are ogg files, which can be converted
    bool nonWav = false; ///< some are neither wav nor au files
};

/// The default assignment \a name as it can be used: empty when its file doesn't exist. \a theme may be null.
/// The format of a file that the theme has is marked in \a formats, whether the file exists or not.
QString usableSound(const QString &name, QazSoundTheme *theme, const QString &soundsDirectory,
                    SoundFormats *formats);

/// Where to start choosing a file for an event that has the sound \a value: the file in use, or a directory. Empty when
/// there is none.
QString startOfChoice(const QString &value, bool hasTheme, const QString &soundsDirectory);

/// The assignment for a chosen file: a file in the sounds directory itself is a built-in file.
QString assignmentForFile(const QString &path, const QString &soundsDirectory);
