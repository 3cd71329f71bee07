#pragma once

#include "app/configdialog.h"
#include "fonts/fontpage.h"
#include "pages/effects/effectpage.h"
#include "pages/screensaver/screensaverpage.h"
#include "pages/sounds/soundpage.h"
#include "pages/theme/themepage.h"
#include "pages/wallpaper/wallpaperpage.h"

#include <algorithm>
#include <iterator>

// The pages of the dialog. A new one is a row here and a place in the order of saving.

/// What the dialog needs of a page class.
struct PageType {
    QWidget *(*create)(QWidget *stack);
    void (*connectEdits)(QWidget *page, ConfigDialog *dialog);
    bool (*isLoaded)(const QWidget *page);
    void (*load)(QWidget *page, QazSettings *store);
    void (*save)(QWidget *page, QazSettings *store);
};

template<typename Page>
inline constexpr PageType typeOf = {
    [](QWidget *stack) -> QWidget * { return new Page(stack); },
    [](QWidget *page, ConfigDialog *dialog) {
        QObject::connect(static_cast<Page *>(page), &Page::changedSignal, dialog, &ConfigDialog::changedSlot);
    },
    [](const QWidget *page) { return static_cast<const Page *>(page)->loaded; },
    [](QWidget *page, QazSettings *store) { static_cast<Page *>(page)->loadValues(store); },
    [](QWidget *page, QazSettings *store) { static_cast<Page *>(page)->saveValues(store); }};

struct PageEntry {
    const char *iconName;
    const char *text;
    const PageType *type;
};

// In the order of the list's rows, and so of the stack.
// clang-format off
inline constexpr PageEntry pageEntries[] = {
    {"preferences-desktop-wallpaper",   QT_TRANSLATE_NOOP("ConfigDialog", "Wallpaper"),   &typeOf<WallpaperPage>},
    {"preferences-desktop-theme",       QT_TRANSLATE_NOOP("ConfigDialog", "Theme"),       &typeOf<ThemePage>},
    {"preferences-desktop-font",        QT_TRANSLATE_NOOP("ConfigDialog", "Fonts"),       &typeOf<FontPage>},
    {"preferences-desktop-screensaver", QT_TRANSLATE_NOOP("ConfigDialog", "Screensaver"), &typeOf<ScreensaverPage>},
    {"system-run",                      QT_TRANSLATE_NOOP("ConfigDialog", "Effects"),     &typeOf<EffectPage>},
    {"preferences-desktop-sound",       QT_TRANSLATE_NOOP("ConfigDialog", "Sounds"),      &typeOf<SoundPage>}};
// clang-format on

// The window manager is told in this order, in which the pages end, too.
inline constexpr const PageType *saveOrder[] = {&typeOf<WallpaperPage>, &typeOf<EffectPage>,
                                                &typeOf<ThemePage>,     &typeOf<FontPage>,
                                                &typeOf<SoundPage>,     &typeOf<ScreensaverPage>};
static_assert(std::size(saveOrder) == std::size(pageEntries));

/// The row of the list, and of the stack, that a page of \a type has.
inline int rowOf(const PageType *type)
{
    const auto *const entry = std::find_if(std::begin(pageEntries), std::end(pageEntries),
                                           [type](const PageEntry &each) { return each.type == type; });
    return int(entry - std::begin(pageEntries));
}
