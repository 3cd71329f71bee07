#pragma once

#include "settings/themekeys.h"

/// One font role of the desktop. The key's title and the help are translated in the context of KFonts.
struct FontRole {
    const ThemeKey *key;
    const char *help;
};

// In the order of the rows on screen, which is also that of loading and saving.
// clang-format off
inline constexpr FontRole fontRoles[] = {
    {&themeKey("DefaultFont"),      QT_TRANSLATE_NOOP("KFonts", "Default.")},
    {&themeKey("TitleFont"),        QT_TRANSLATE_NOOP("KFonts", "Window titles.")},
    {&themeKey("StartMenuFont"),    QT_TRANSLATE_NOOP("KFonts", "Start menu.")},
    {&themeKey("CascadeMenuFont"),  QT_TRANSLATE_NOOP("KFonts", "Cascade menus, context menus.")},
    {&themeKey("CtrlMenuFont"),     QT_TRANSLATE_NOOP("KFonts", "Control menus.")},
    {&themeKey("DialogFont"),       QT_TRANSLATE_NOOP("KFonts", "Dialogs.")},
    {&themeKey("TaskbarFont"),      QT_TRANSLATE_NOOP("KFonts", "Taskbar.")},
    {&themeKey("TaskbarBoldFont"),  QT_TRANSLATE_NOOP("KFonts", "Taskbar bold.")},
    {&themeKey("TaskbarClockFont"), QT_TRANSLATE_NOOP("KFonts", "Taskbar clock.")},
    {&themeKey("IconFont"),         QT_TRANSLATE_NOOP("KFonts", "Icons.")},
    {&themeKey("TooltipFont"),      QT_TRANSLATE_NOOP("KFonts", "Tooltips.")}};
// clang-format on
