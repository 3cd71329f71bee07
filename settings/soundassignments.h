#pragma once

#include "settings/themekeys.h"

#include <QString>

#include <iterator>

class QazSoundTheme;

/// A window-manager event that can have a sound.
struct SoundEvent {
    const ThemeKey *key;
    const char *themeSound;  ///< the sound's name in sound themes
    const char *builtInFile; ///< in the sounds directory; empty: no sound without a theme
};

// clang-format off
constexpr SoundEvent soundEvents[] = { // in the order of the list, which is the save order
    {&themeKey("MenuPopupSound"),        "menu-popup",              ""},
    {&themeKey("MenuCommandSound"),      "item-selected",           ""},
    {&themeKey("OpenSound"),             "window-new",              ""},
    {&themeKey("CloseSound"),            "window-close",            ""},
    {&themeKey("RestoreUpSound"),        "window-unminimized",      ""},
    {&themeKey("RestoreDownSound"),      "window-unmaximized",      ""},
    {&themeKey("MinimizeSound"),         "window-minimized",        ""},
    {&themeKey("MaximizeSound"),         "window-maximized",        ""},
    {&themeKey("SystemStartSound"),      "desktop-login",           "x-qaz-wm-chimes.wav"},
    {&themeKey("SystemExitSound"),       "desktop-logout",          "x-qaz-wm-chimes.wav"},
    {&themeKey("SystemLockSound"),       "desktop-screen-lock",     "x-qaz-wm-chimes.wav"},
    {&themeKey("ErrorDialogSound"),      "dialog-error",            "x-qaz-wm-error.wav"},
    {&themeKey("ForceTrayMessageSound"), "window-attention-active", "x-qaz-wm-notify.wav"},
    {&themeKey("PagingSound"),           "desktop-switch-left",     "x-qaz-wm-slide.wav"}};
// clang-format on
static_assert(std::size(soundEvents) == 14);

/// The form of an event's stored text.
enum class SoundKind {
    ThemeSound, ///< a sound's name in the current theme, or empty
    File,       ///< an absolute path: the user's own choice
    BuiltIn     ///< a name with a dot: a file in the sounds directory
};

SoundKind soundKind(const QString &value);

/// The file that \a theme has for a sound; empty without a theme (null) or when it has none.
QString themeSoundFile(QazSoundTheme *theme, const QString &name);

/// What a play of an assignment takes.
struct PlayableSound {
    QString path;
    bool isPlayable = true; ///< false: the theme's file is no wav file
};

/// Without a theme (null) the name of a theme's sound stands for a file of the sounds directory.
PlayableSound playableSound(const QString &value, QazSoundTheme *theme, const QString &soundsDirectory);
