#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The directories that hold sound themes, the user's first and the desktop's own last; absolute, each once.
QStringList soundBaseDirectories();

/// The spellings of the user's locale that a localised file may stand under, most specific first and the untranslated
/// place (an empty text) last: "de_AT@euro" gives "de_AT@euro", "de_AT", "de@euro", "de", "C", "".
QStringList localeVariants();

/// The best file that a directory has for a sound.
struct SoundCandidate {
    /// Among the files of one name `.wav` is best, then `.au`, `.oga`, `.ogg`, then any other ending. A name with
    /// a `.disabled` file has no sound, whatever files it has besides.
    enum Rank { Disabled, Wav, Au, Oga, Ogg, Other };

    Rank rank;
    QString path;
};

/// The best file of each sound in \a directory, by the sounds' names.
QHash<QString, SoundCandidate> soundsIn(const QString &directory);
