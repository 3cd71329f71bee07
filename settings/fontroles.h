#pragma once

#include <QtGlobal>

/// One font role of the desktop. Label and help are translated in the context of KFonts.
struct FontRole {
    const char *key; ///< in the theme file
    const char *label;
    const char *help;
    bool isBold; ///< in the default font
};

/// Of every default font.
inline constexpr char roleFamily[] = "Verdana";
inline constexpr int rolePointSize = 10;

// In the order of the rows on screen, which is also that of loading and saving.
// clang-format off
inline constexpr FontRole fontRoles[] = {
    {"DefaultFont",      QT_TRANSLATE_NOOP("KFonts", "General"),       QT_TRANSLATE_NOOP("KFonts", "Default."),                      false},
    {"TitleFont",        QT_TRANSLATE_NOOP("KFonts", "Title"),         QT_TRANSLATE_NOOP("KFonts", "Window titles."),                false},
    {"StartMenuFont",    QT_TRANSLATE_NOOP("KFonts", "Start Menu"),    QT_TRANSLATE_NOOP("KFonts", "Start menu."),                   false},
    {"CascadeMenuFont",  QT_TRANSLATE_NOOP("KFonts", "Cascade Menu"),  QT_TRANSLATE_NOOP("KFonts", "Cascade menus, context menus."), false},
    {"CtrlMenuFont",     QT_TRANSLATE_NOOP("KFonts", "Control Menu"),  QT_TRANSLATE_NOOP("KFonts", "Control menus."),                false},
    {"DialogFont",       QT_TRANSLATE_NOOP("KFonts", "Dialog"),        QT_TRANSLATE_NOOP("KFonts", "Dialogs."),                      false},
    {"TaskbarFont",      QT_TRANSLATE_NOOP("KFonts", "Taskbar"),       QT_TRANSLATE_NOOP("KFonts", "Taskbar."),                      false},
    {"TaskbarBoldFont",  QT_TRANSLATE_NOOP("KFonts", "Taskbar bold"),  QT_TRANSLATE_NOOP("KFonts", "Taskbar bold."),                 true},
    {"TaskbarClockFont", QT_TRANSLATE_NOOP("KFonts", "Taskbar clock"), QT_TRANSLATE_NOOP("KFonts", "Taskbar clock."),                false},
    {"IconFont",         QT_TRANSLATE_NOOP("KFonts", "Icon"),          QT_TRANSLATE_NOOP("KFonts", "Icons."),                        false},
    {"TooltipFont",      QT_TRANSLATE_NOOP("KFonts", "Tooltip"),       QT_TRANSLATE_NOOP("KFonts", "Tooltips."),                     false}};
// clang-format on
