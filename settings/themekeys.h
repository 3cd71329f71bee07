#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <iterator>
#include <string_view>

/// What texts a key of the theme file takes.
enum class KeyKind {
    Text,   ///< a theme's name, possibly empty
    Number, ///< a whole number between two limits
    Truth,  ///< "true" or "false"
    Color,  ///< a colour's name or "#rrggbb"; also the old colour scheme's names
    Font,   ///< a role font such as Verdana-10:bold
    Word,   ///< one of a closed set
    File    ///< an absolute path or a name that the desktop looks up
};

/// One key of the theme file.
struct ThemeKey {
    const char *name;
    KeyKind kind;
    const char *defaultText; ///< what holds while the key is missing
    const char *context;     ///< of the translation of \a title
    const char *title;
    int minimum = 0; ///< of a number, in the file's unit
    int maximum = 0;
    const char *words = nullptr; ///< of a closed set, separated by commas
    /// The pages load a missing key with another default than they save it with, on purpose: any value that is set
    /// while the key is missing is new.
    bool isNewWhenMissing = false;
    const char *part
        = nullptr; ///< of the desktop that has a colour, where the title is no more than its name
};

/// A row of a colour; the key of a gradient's end is that of its begin and "2".
constexpr ThemeKey colorKey(const char *name, const char *defaultText, const char *title, const char *part)
{
    return {name, KeyKind::Color, defaultText, "ThemePage", title, 0, 0, nullptr, false, part};
}

/// A row of a font role. A missing font is the role's default on load; a saved one is compared with the empty text.
constexpr ThemeKey fontKey(const char *name, const char *defaultText, const char *title)
{
    return {name, KeyKind::Font, defaultText, "KFonts", title, 0, 0, nullptr, true};
}

// clang-format off
/// Every key that the pages edit, in the order of the pages and of their rows. Colours stand in the order of their keys.
inline constexpr ThemeKey themeKeys[] = {
    {"WallPaper",                KeyKind::File,   "qaz-default",           "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Wallpaper: a file, a name or a color #rrggbb")},
    {"WallPaperPos",             KeyKind::Word,   "Stretch",               "WallpaperForm", QT_TRANSLATE_NOOP("WallpaperForm", "How to fit wallpaper to desktop"), 0, 0, "Center,Tile,Stretch"},
    {"WallPaperPeriod",          KeyKind::Number, "0",                     "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Minutes from one wallpaper of the slide show to the next; 0: none"), 0, 3600},

    {"IconTheme",                KeyKind::Text,   "qaz-tirsk",             "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Icon theme"), 0, 0, nullptr, true},
    {"DecorTheme",               KeyKind::Text,   "",                      "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Decoration theme of windows and taskbar; empty: none")},
    colorKey("ButtonActiveColor",       "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Button active"), QT_TRANSLATE_NOOP("ThemeKeys", "buttons under the pointer")),
    colorKey("ButtonColor",             "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Button"), QT_TRANSLATE_NOOP("ThemeKeys", "buttons")),
    colorKey("ButtonStringActiveColor", "black",   QT_TRANSLATE_NOOP("ThemePage", "Button string active"), QT_TRANSLATE_NOOP("ThemeKeys", "text on buttons under the pointer")),
    colorKey("ButtonStringColor",       "black",   QT_TRANSLATE_NOOP("ThemePage", "Button string"), QT_TRANSLATE_NOOP("ThemeKeys", "text on buttons")),
    colorKey("ClockStringColor",        "black",   QT_TRANSLATE_NOOP("ThemePage", "Clock string"), QT_TRANSLATE_NOOP("ThemeKeys", "text of the clock in the taskbar")),
    colorKey("DesktopActiveColor",      "#000080", QT_TRANSLATE_NOOP("ThemePage", "Desktop active"), QT_TRANSLATE_NOOP("ThemeKeys", "what is selected on the desktop")),
    colorKey("DesktopColor",            "#3a6ea5", QT_TRANSLATE_NOOP("ThemePage", "Desktop"), QT_TRANSLATE_NOOP("ThemeKeys", "background of the desktop where no wallpaper covers it")),
    colorKey("DesktopColor2",           "#3a6ea5", "Desktop", "background of the desktop where no wallpaper covers it"),
    colorKey("DialogColor",             "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Dialog"), QT_TRANSLATE_NOOP("ThemeKeys", "background of the desktop's dialogs")),
    colorKey("DialogStringColor",       "black",   QT_TRANSLATE_NOOP("ThemePage", "Dialog string"), QT_TRANSLATE_NOOP("ThemeKeys", "text in the desktop's dialogs")),
    colorKey("FrameActiveColor",        "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Frame active"), QT_TRANSLATE_NOOP("ThemeKeys", "frame of the active window")),
    colorKey("FrameColor",              "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Frame"), QT_TRANSLATE_NOOP("ThemeKeys", "frames of the other windows")),
    colorKey("IconBackColor",           "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Icon background"), QT_TRANSLATE_NOOP("ThemeKeys", "background of icons")),
    colorKey("IconForeColor",           "#000080", QT_TRANSLATE_NOOP("ThemePage", "Icon foreground"), QT_TRANSLATE_NOOP("ThemeKeys", "foreground of icons")),
    colorKey("IconStringActiveColor",   "white",   QT_TRANSLATE_NOOP("ThemePage", "Icon string active"), QT_TRANSLATE_NOOP("ThemeKeys", "text of selected icons")),
    colorKey("IconStringColor",         "white",   QT_TRANSLATE_NOOP("ThemePage", "Icon string"), QT_TRANSLATE_NOOP("ThemeKeys", "text of icons")),
    colorKey("MenuActiveColor",         "#000080", QT_TRANSLATE_NOOP("ThemePage", "Menu active"), QT_TRANSLATE_NOOP("ThemeKeys", "selected entry of a menu")),
    colorKey("MenuColor",               "#a4a3be", QT_TRANSLATE_NOOP("ThemePage", "Menu"), QT_TRANSLATE_NOOP("ThemeKeys", "background of menus")),
    colorKey("MenuColor2",              "#fbfcfd", "Menu", "background of menus"),
    colorKey("MenuStringActiveColor",   "white",   QT_TRANSLATE_NOOP("ThemePage", "Menu string active"), QT_TRANSLATE_NOOP("ThemeKeys", "text of the selected entry of a menu")),
    colorKey("MenuStringColor",         "black",   QT_TRANSLATE_NOOP("ThemePage", "Menu string"), QT_TRANSLATE_NOOP("ThemeKeys", "text in menus")),
    colorKey("MiniatureActiveColor",    "red",     QT_TRANSLATE_NOOP("ThemePage", "Pager miniatire active"), QT_TRANSLATE_NOOP("ThemeKeys", "miniature of the active window in the pager")),
    colorKey("MiniatureColor",          "black",   QT_TRANSLATE_NOOP("ThemePage", "Pager miniature"), QT_TRANSLATE_NOOP("ThemeKeys", "miniatures of windows in the pager")),
    colorKey("PagerActiveColor",        "#606060", QT_TRANSLATE_NOOP("ThemePage", "Pager active"), QT_TRANSLATE_NOOP("ThemeKeys", "desktop in view in the pager")),
    colorKey("PagerColor",              "#a4a3be", QT_TRANSLATE_NOOP("ThemePage", "Pager"), QT_TRANSLATE_NOOP("ThemeKeys", "background of the pager")),
    colorKey("PagerColor2",             "#fbfcfd", "Pager", "background of the pager"),
    colorKey("StartMenuLogoColor",      "#501414", QT_TRANSLATE_NOOP("ThemePage", "Start menu logo"), QT_TRANSLATE_NOOP("ThemeKeys", "logo of the start menu")),
    colorKey("SwitcherActiveColor",     "#000080", QT_TRANSLATE_NOOP("ThemePage", "Switcher active"), QT_TRANSLATE_NOOP("ThemeKeys", "selected window in the task switcher")),
    colorKey("SwitcherColor",           "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Switcher"), QT_TRANSLATE_NOOP("ThemeKeys", "background of the task switcher")),
    colorKey("SwitcherStringColor",     "black",   QT_TRANSLATE_NOOP("ThemePage", "Switcher string"), QT_TRANSLATE_NOOP("ThemeKeys", "text in the task switcher")),
    colorKey("TaskbarColor",            "#c0c0c0", QT_TRANSLATE_NOOP("ThemePage", "Taskbar"), QT_TRANSLATE_NOOP("ThemeKeys", "background of the taskbar")),
    colorKey("TitleStringActiveColor",  "white",   QT_TRANSLATE_NOOP("ThemePage", "Title string active"), QT_TRANSLATE_NOOP("ThemeKeys", "title of the active window")),
    colorKey("TitleStringColor",        "white",   QT_TRANSLATE_NOOP("ThemePage", "Title string"), QT_TRANSLATE_NOOP("ThemeKeys", "titles of the other windows")),
    colorKey("TitlebarActiveColor",     "#000080", QT_TRANSLATE_NOOP("ThemePage", "Titlebar active"), QT_TRANSLATE_NOOP("ThemeKeys", "title bar of the active window")),
    colorKey("TitlebarActiveColor2",    "#a6caf0", "Titlebar active", "title bar of the active window"),
    colorKey("TitlebarColor",           "#606060", QT_TRANSLATE_NOOP("ThemePage", "Titlebar"), QT_TRANSLATE_NOOP("ThemeKeys", "title bars of the other windows")),
    colorKey("TitlebarColor2",          "#c0c0c0", "Titlebar", "title bars of the other windows"),
    colorKey("TooltipColor",            "#ffffe1", QT_TRANSLATE_NOOP("ThemePage", "Tooltip"), QT_TRANSLATE_NOOP("ThemeKeys", "background of tool tips")),
    colorKey("TooltipStringColor",      "black",   QT_TRANSLATE_NOOP("ThemePage", "Tooltip string"), QT_TRANSLATE_NOOP("ThemeKeys", "text of tool tips")),
    // The defaults of the two sizes are those of a screen of usual or unknown resolution.
    {"DesktopIconSize",          KeyKind::Word,   "48",                    "ThemePage",  QT_TRANSLATE_NOOP("ThemePage", "Desktop icon size"), 0, 0, "16,22,32,48,64,96,128,256"},
    {"TaskbarHeight",            KeyKind::Number, "49",                    "ThemePage",  QT_TRANSLATE_NOOP("ThemePage", "Taskbar height"), 21, 280},

    fontKey("DefaultFont",       "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "General")),
    fontKey("TitleFont",         "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Title")),
    fontKey("StartMenuFont",     "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Start Menu")),
    fontKey("CascadeMenuFont",   "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Cascade Menu")),
    fontKey("CtrlMenuFont",      "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Control Menu")),
    fontKey("DialogFont",        "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Dialog")),
    fontKey("TaskbarFont",       "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Taskbar")),
    fontKey("TaskbarBoldFont",   "Verdana-10:bold",    QT_TRANSLATE_NOOP("KFonts", "Taskbar bold")),
    fontKey("TaskbarClockFont",  "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Taskbar clock")),
    fontKey("IconFont",          "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Icon")),
    fontKey("TooltipFont",       "Verdana-10:normal",  QT_TRANSLATE_NOOP("KFonts", "Tooltip")),

    {"ScreenSaverDelay",         KeyKind::Number, "600",                   "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Seconds without input until the screensaver starts; 0: never"), 0, 59940},
    {"LockerDpmsOffTimeout",     KeyKind::Number, "60",                    "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Seconds until the locked display is switched off"), 0, 59940},
    {"LockerWrongPasswdTimeout", KeyKind::Number, "2",                     "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Seconds that the locker waits after a wrong password"), 0, 99},
    {"LockerBellLevel",          KeyKind::Number, "50",                    "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Loudness of the bell for a wrong password, in percent"), 0, 100},
    {"LockerTTYLock",            KeyKind::Truth,  "true",                  "ScreensaverForm", QT_TRANSLATE_NOOP("ScreensaverForm", "Lock console switching")},
    {"LockerXaccessLock",        KeyKind::Truth,  "false",                 "ScreensaverForm", QT_TRANSLATE_NOOP("ScreensaverForm", "Lock X Access")},

    {"SmartPlacement",           KeyKind::Truth,  "true",                  "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Search free area to map window")},
    {"OpaqueMove",               KeyKind::Truth,  "true",                  "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Opaque window move")},
    {"OpaqueResize",             KeyKind::Truth,  "true",                  "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Opaque window resize")},
    {"FullOpaque",               KeyKind::Truth,  "true",                  "EffectForm", "Opaque window resize"},
    {"StartMenuMapSpeed",        KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Speed of start menu show animation"), 0, 25},
    {"ArrangeWindowSpeed",       KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Speed of windows minimize-maximize, restore, rearrange"), 0, 25, nullptr, true},
    {"GradWindowMapSpeed",       KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "speed of window map/unmap"), 0, 30, nullptr, true},
    {"GradWindowMapStyle",       KeyKind::Word,   "Normal",                "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Style of window map/ummap"), 0, 0, "Normal,TopToBottom,LeftToRight,CenterToTopBottom,CenterToLeftRight,CenterToAll,FromButton,RightToLeft,BottomToTop"},
    {"MenuDelayTime",            KeyKind::Number, "300",                   "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "menu show delay (ms)"), 0, 3000},
    {"MenuDelayTime2",           KeyKind::Number, "300",                   "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "menu hide delay (ms)"), 0, 3000},
    {"GradMenuMapSpeed",         KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "menu map animation speed"), 0, 10},
    {"GradTaskbarMotionSpeed",   KeyKind::Number, "10",                    "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "speed of autohided taskbar map/unmap"), 0, 30},
    {"TaskbarShowDelay",         KeyKind::Number, "500",                   "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "autohided taskbar show delay (ms)"), 0, 3000},
    {"TaskbarHideDelay",         KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "autohided taskbar hide delay (ms)"), 0, 3000},
    {"PagingBeltSize",           KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Screen edge area for autopaging"), 0, 20},
    {"PagingResistance",         KeyKind::Number, "1500",                  "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Autopaging resistance"), 0, 5000},
    {"PagingSpeed",              KeyKind::Number, "30",                    "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Autopaging speed"), 0, 100},
    {"PagingShiftCursor",        KeyKind::Number, "200",                   "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "Shift cursor from edge when autopaging"), 0, 500},
    {"MenuTransparency",         KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "menu transparency left side value"), 0, 100},
    {"MenuTransparency2",        KeyKind::Number, "0",                     "EffectForm", QT_TRANSLATE_NOOP("EffectForm", "menu transparency right side value"), 0, 100},
    {"CompositeManager",         KeyKind::File,   "/usr/bin/qaz-kompmgr",  "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Program that draws transparency and shadows")},
    {"UseComposite",             KeyKind::Truth,  "true",                  "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Whether that program runs"), 0, 0, nullptr, true},
    {"ThumbSize",                KeyKind::Number, "0",                     "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Size of window thumbnails in pixels; 0: none"), 0, 1000},

    {"EnableSound",              KeyKind::Truth,  "false",                 "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Use sounds in window manager")},
    {"EnableAlsa",               KeyKind::Truth,  "false",                 "SoundForm",  "Use sounds in window manager"},
    {"MenuPopupSound",           KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Menu Popup")},
    {"MenuCommandSound",         KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Menu Command")},
    {"OpenSound",                KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Open Window")},
    {"CloseSound",               KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Close Window")},
    {"RestoreUpSound",           KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Restore Window up")},
    {"RestoreDownSound",         KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Restore Window down")},
    {"MinimizeSound",            KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Minimize Window")},
    {"MaximizeSound",            KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Maximize Window")},
    {"SystemStartSound",         KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "System Start")},
    {"SystemExitSound",          KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "System Exit")},
    {"SystemLockSound",          KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "System Lock")},
    {"ErrorDialogSound",         KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Error Dialog")},
    {"ForceTrayMessageSound",    KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Forced Tray Message")},
    {"PagingSound",              KeyKind::File,   "",                      "SoundForm",  QT_TRANSLATE_NOOP("SoundForm", "Paging")},
    {"SoundTheme",               KeyKind::Text,   "",                      "ThemeKeys",  QT_TRANSLATE_NOOP("ThemeKeys", "Sound theme; empty: none")}};
// clang-format on

/// The row of a key that exists: a wrong \a name does not compile where the row is a constant.
constexpr const ThemeKey &themeKey(std::string_view name)
{
    std::size_t row = 0;
    while (name != themeKeys[row].name)
        ++row;
    return themeKeys[row];
}

/// The row of the key \a name; null for a key that no page knows.
const ThemeKey *findThemeKey(const QString &name);

/// One line in the user's language that says what \a key means.
QString meaning(const ThemeKey &key);

/// The words of a closed set, "true" and "false" of a truth value; empty for all other kinds.
QStringList closedSet(const ThemeKey &key);

/// What \a key takes, in words: "a whole number from 0 to 100".
QString allowedValues(const ThemeKey &key);

/// Whether \a text may be stored under \a key.
bool fits(const ThemeKey &key, const QString &text);

/// Whether \a text may be stored under a key that no page knows.
bool fitsAnyKey(const QString &text);

/// Whether \a name could be a key of a theme file at all.
bool isKeyName(const QString &name);

/// A \a text that fits as the pages would store it: "7" for "+07".
QString storedForm(const ThemeKey &key, const QString &text);

/// Whether storing \a text in place of \a stored would change what the pages read: truth values and numbers are
/// compared as such.
bool differs(const ThemeKey &key, const QString &stored, const QString &text);
