#pragma once

#include "app/configdialog.h"
#include "fonts/fontpage.h"
#include "pages/effects/effectpage.h"
#include "pages/screensaver/screensaverpage.h"
#include "pages/sounds/soundpage.h"
#include "pages/theme/themepage.h"
#include "pages/wallpaper/wallpaperpage.h"

#include <iterator>

// The pages of the dialog. A new one is a row here and a place in the order of saving.

/// What the dialog needs of a page.
struct PageEntry {
    const char *iconName;
    const char *text;
    QWidget *(*create)(QWidget *stack);
    void (*connectEdits)(QWidget *page, ConfigDialog *dialog);
    bool (*isLoaded)(const QWidget *page);
    void (*load)(QWidget *page, QazSettings *store);
    void (*save)(QWidget *page, QazSettings *store);
};

template<typename Page>
constexpr PageEntry entryOf(const char *iconName, const char *text)
{
    return {iconName,
            text,
            [](QWidget *stack) -> QWidget * { return new Page(stack); },
            [](QWidget *page, ConfigDialog *dialog) {
                QObject::connect(static_cast<Page *>(page), &Page::changedSignal, dialog,
                                 &ConfigDialog::changedSlot);
            },
            [](const QWidget *page) { return static_cast<const Page *>(page)->loaded; },
            [](QWidget *page, QazSettings *store) { static_cast<Page *>(page)->loadValues(store); },
            [](QWidget *page, QazSettings *store) { static_cast<Page *>(page)->saveValues(store); }};
}

enum PageRow { WallpaperRow, ThemeRow, FontRow, ScreensaverRow, EffectRow, SoundRow };

// In the order of the list's rows, and so of the stack.
// clang-format off
inline constexpr PageEntry pageEntries[] = {
    entryOf<WallpaperPage>  ("preferences-desktop-wallpaper",   QT_TRANSLATE_NOOP("ConfigDialog", "Wallpaper")),
    entryOf<ThemePage>      ("preferences-desktop-theme",       QT_TRANSLATE_NOOP("ConfigDialog", "Theme")),
    entryOf<FontPage>       ("preferences-desktop-font",        QT_TRANSLATE_NOOP("ConfigDialog", "Fonts")),
    entryOf<ScreensaverPage>("preferences-desktop-screensaver", QT_TRANSLATE_NOOP("ConfigDialog", "Screensaver")),
    entryOf<EffectPage>     ("system-run",                      QT_TRANSLATE_NOOP("ConfigDialog", "Effects")),
    entryOf<SoundPage>      ("preferences-desktop-sound",       QT_TRANSLATE_NOOP("ConfigDialog", "Sounds"))};
// clang-format on

// The window manager is told in this order, in which the pages end, too.
inline constexpr PageRow saveOrder[] = {WallpaperRow, EffectRow, ThemeRow, FontRow, SoundRow, ScreensaverRow};
static_assert(std::size(saveOrder) == std::size(pageEntries));
