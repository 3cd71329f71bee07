#pragma once

#include <QString>
#include <QStringList>

#include <iterator>

class QazSettings;

/// A desktop element that has a colour, or, with a second key, a gradient between two.
struct ColorElement {
    const char *name; ///< as shown, in the translation context of the page
    const char *key;
    const char *defaultColor;
    const char *secondDefault; ///< of the gradient's end, stored under the key and "2"; nullptr: no gradient
};

// clang-format off
/// In the order of their keys, in which they are shown and saved.
constexpr ColorElement colorElements[] = {
    {QT_TRANSLATE_NOOP("ThemePage", "Button active"),                "ButtonActiveColor",       "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Button"),                       "ButtonColor",             "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Button string active"),         "ButtonStringActiveColor", "black",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Button string"),                "ButtonStringColor",       "black",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Clock string"),                 "ClockStringColor",        "black",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Desktop active"),               "DesktopActiveColor",      "#000080", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Desktop"),                      "DesktopColor",            "#3a6ea5", "#3a6ea5"},
    {QT_TRANSLATE_NOOP("ThemePage", "Dialog"),                       "DialogColor",             "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Dialog string"),                "DialogStringColor",       "black",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Frame active"),                 "FrameActiveColor",        "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Frame"),                        "FrameColor",              "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Icon background"),              "IconBackColor",           "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Icon foreground"),              "IconForeColor",           "#000080", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Icon string active"),           "IconStringActiveColor",   "white",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Icon string"),                  "IconStringColor",         "white",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Menu active"),                  "MenuActiveColor",         "#000080", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Menu"),                         "MenuColor",               "#a4a3be", "#fbfcfd"},
    {QT_TRANSLATE_NOOP("ThemePage", "Menu string active"),           "MenuStringActiveColor",   "white",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Menu string"),                  "MenuStringColor",         "black",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Pager miniatire active"),       "MiniatureActiveColor",    "red",     nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Pager miniature"),              "MiniatureColor",          "black",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Pager active"),                 "PagerActiveColor",        "#606060", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Pager"),                        "PagerColor",              "#a4a3be", "#fbfcfd"},
    {QT_TRANSLATE_NOOP("ThemePage", "Start menu logo"),              "StartMenuLogoColor",      "#501414", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Switcher active"),              "SwitcherActiveColor",     "#000080", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Switcher"),                     "SwitcherColor",           "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Switcher string"),              "SwitcherStringColor",     "black",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Taskbar"),                      "TaskbarColor",            "#c0c0c0", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Title string active"),          "TitleStringActiveColor",  "white",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Title string"),                 "TitleStringColor",        "white",   nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Titlebar active"),              "TitlebarActiveColor",     "#000080", "#a6caf0"},
    {QT_TRANSLATE_NOOP("ThemePage", "Titlebar"),                     "TitlebarColor",           "#606060", "#c0c0c0"},
    {QT_TRANSLATE_NOOP("ThemePage", "Tooltip"),                      "TooltipColor",            "#ffffe1", nullptr},
    {QT_TRANSLATE_NOOP("ThemePage", "Tooltip string"),               "TooltipStringColor",      "black",   nullptr}};
// clang-format on
static_assert(std::size(colorElements) == 34);

bool isGradient(const ColorElement &element);

/// The keys under which the colours of \a element are stored: one, or for a gradient two.
QStringList colorKeys(const ColorElement &element);

/// The colours of \a element when nothing is stored, as many as it has keys.
QStringList defaultColors(const ColorElement &element);

/// The colours of \a element in \a settings as they are shown: current texts, as many as it has keys.
QStringList storedColors(const ColorElement &element, const QazSettings &settings);

/// Stores and announces those of \a colors, as many as \a element has keys, that differ from \a settings.
void saveColors(const ColorElement &element, const QStringList &colors, QazSettings *settings);

/// The data of an element's entry: the key and its colours, joined by commas.
QString colorItemData(const QString &key, const QStringList &colors);
