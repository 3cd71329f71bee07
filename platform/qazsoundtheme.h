#pragma once

#include "platform/list.h"

#include <QByteArray>

#include <memory>

/// A sound theme of the freedesktop sound theme standard, found in `sounds/` of the XDG data directories and in
/// the desktop's own sounds directory. All texts are in the local 8-bit encoding.
class QazSoundTheme
{
public:
    /// Names a theme by its directory's name; nothing is read before load(). The second argument is part of the
    /// desktop's interface and has no effect here.
    explicit QazSoundTheme(const char *themeName, const char *firstDirectory = nullptr);
    ~QazSoundTheme();

    /// Appends the names of all installed themes that do not ask to be hidden, sorted and each once. False when
    /// there is none.
    static bool getThemesNames(List<char> *names);

    /// Reads the theme and the themes that it inherits from. False when the theme has no index that can be read
    /// or its index describes no sound theme; such a theme has no sounds.
    bool load();

    /// Writes the full path of the file for the sound \a name into \a buffer of 4096 bytes: the stereo one in
    /// the user's language, for which an empty \a profile and \a locale ask. False, with the buffer untouched, when
    /// neither the theme nor those it inherits from have the sound, or it is disabled there.
    bool getSound(const char *name, const char *profile, const char *locale, char *buffer);

    /// The directory that holds the theme's index, without a trailing slash; empty before load().
    const char *getPath() const { return m_path.constData(); }
    /// The name to show, as the theme's index gives it in the user's language; without one, getThemeName().
    const char *getName() const { return m_shownName.constData(); }
    /// The name that the theme was constructed with.
    const char *getThemeName() const { return m_themeName.constData(); }

private:
    struct Lookup;

    QByteArray m_themeName;
    QByteArray m_shownName;
    QByteArray m_path;
    std::unique_ptr<Lookup> m_lookup;
};
