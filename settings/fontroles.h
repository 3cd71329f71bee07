#pragma once

#include <QtGlobal>

/// One font role of the desktop. Label and help are translated in the context of KFonts.
struct FontRole {
    const char *label;
    const char *group;
    const char *key; ///< in the theme file
    const char *resourceFile;
    const char *help;
    const char *family; ///< of the default font, as are size and weight
    int pointSize;
    int weight; ///< -1: the toolkit's normal weight
    bool fixedOnly;
};

// In the order of the rows on screen, which is also that of loading and saving.
// clang-format off
inline constexpr FontRole fontRoles[] = {
    {QT_TRANSLATE_NOOP("KFonts", "General"),       "Variables", "DefaultFont",      "", QT_TRANSLATE_NOOP("KFonts", "Default."),                      "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Title"),         "Variables", "TitleFont",        "", QT_TRANSLATE_NOOP("KFonts", "Window titles."),                "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Start Menu"),    "Variables", "StartMenuFont",    "", QT_TRANSLATE_NOOP("KFonts", "Start menu."),                   "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Cascade Menu"),  "Variables", "CascadeMenuFont",  "", QT_TRANSLATE_NOOP("KFonts", "Cascade menus, context menus."), "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Control Menu"),  "Variables", "CtrlMenuFont",     "", QT_TRANSLATE_NOOP("KFonts", "Control menus."),                "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Dialog"),        "Variables", "DialogFont",       "", QT_TRANSLATE_NOOP("KFonts", "Dialogs."),                      "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Taskbar"),       "Variables", "TaskbarFont",      "", QT_TRANSLATE_NOOP("KFonts", "Taskbar."),                      "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Taskbar bold"),  "Variables", "TaskbarBoldFont",  "", QT_TRANSLATE_NOOP("KFonts", "Taskbar bold."),                 "Verdana", 10, 75, false},
    {QT_TRANSLATE_NOOP("KFonts", "Taskbar clock"), "Variables", "TaskbarClockFont", "", QT_TRANSLATE_NOOP("KFonts", "Taskbar clock."),                "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Icon"),          "Variables", "IconFont",         "", QT_TRANSLATE_NOOP("KFonts", "Icons."),                        "Verdana", 10, -1, false},
    {QT_TRANSLATE_NOOP("KFonts", "Tooltip"),       "Variables", "TooltipFont",      "", QT_TRANSLATE_NOOP("KFonts", "Tooltips."),                     "Verdana", 10, -1, false}};
// clang-format on
