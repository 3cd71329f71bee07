#pragma once

#include <QCoreApplication>
#include <QString>

#include <iterator>

class QazSoundTheme;

/// A window-manager event that can have a sound.
struct SoundEvent {
    const char *title;       ///< shown, translated in the context "SoundForm"
    const char *key;         ///< in the theme file
    const char *themeSound;  ///< the sound's name in sound themes
    const char *builtInFile; ///< in the sounds directory; empty: no sound without a theme
};

// clang-format off
constexpr SoundEvent soundEvents[] = { // in the order of the list, which is the save order
    {QT_TRANSLATE_NOOP("SoundForm", "Menu Popup"),          "MenuPopupSound",        "menu-popup",              ""},
    {QT_TRANSLATE_NOOP("SoundForm", "Menu Command"),        "MenuCommandSound",      "item-selected",           ""},
    {QT_TRANSLATE_NOOP("SoundForm", "Open Window"),         "OpenSound",             "window-new",              ""},
    {QT_TRANSLATE_NOOP("SoundForm", "Close Window"),        "CloseSound",            "window-close",            ""},
    {QT_TRANSLATE_NOOP("SoundForm", "Restore Window up"),   "RestoreUpSound",        "window-unminimized",      ""},
    {QT_TRANSLATE_NOOP("SoundForm", "Restore Window down"), "RestoreDownSound",      "window-unmaximized",      ""},
    {QT_TRANSLATE_NOOP("SoundForm", "Minimize Window"),     "MinimizeSound",         "window-minimized",        ""},
    {QT_TRANSLATE_NOOP("SoundForm", "Maximize Window"),     "MaximizeSound",         "window-maximized",        ""},
    {QT_TRANSLATE_NOOP("SoundForm", "System Start"),        "SystemStartSound",      "desktop-login",           "x-qaz-wm-chimes.wav"},
    {QT_TRANSLATE_NOOP("SoundForm", "System Exit"),         "SystemExitSound",       "desktop-logout",          "x-qaz-wm-chimes.wav"},
    {QT_TRANSLATE_NOOP("SoundForm", "System Lock"),         "SystemLockSound",       "desktop-screen-lock",     "x-qaz-wm-chimes.wav"},
    {QT_TRANSLATE_NOOP("SoundForm", "Error Dialog"),        "ErrorDialogSound",      "dialog-error",            "x-qaz-wm-error.wav"},
    {QT_TRANSLATE_NOOP("SoundForm", "Forced Tray Message"), "ForceTrayMessageSound", "window-attention-active", "x-qaz-wm-notify.wav"},
    {QT_TRANSLATE_NOOP("SoundForm", "Paging"),              "PagingSound",           "desktop-switch-left",     "x-qaz-wm-slide.wav"}};
// clang-format on
static_assert(std::size(soundEvents) == 14);

/// The form of an event's stored text.
enum class SoundKind {
    None,      ///< empty
    File,      ///< an absolute path: the user's own choice
    BuiltIn,   ///< a name with a dot: a file in the sounds directory
    ThemeSound ///< any other text: a sound's name in the current theme
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
