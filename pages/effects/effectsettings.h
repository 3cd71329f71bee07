#pragma once

#include "settings/themekeys.h"
#include "ui_effectform.h"

#include <variant>

/// One value of the theme file and the widget that edits it. The widget's class is the value's kind: a check
/// box holds a boolean, a spin box an integer, the combo box the keyword of a window-map style.
struct EffectSetting {
    const ThemeKey *key; ///< with the default on load
    std::variant<QCheckBox * Ui_EffectForm::*, QSpinBox * Ui_EffectForm::*, QComboBox * Ui_EffectForm::*>
        widget;
    const char *saveDefault = nullptr; ///< where it is another one than on load, on purpose
    bool isLoaded = true;
};

// clang-format off
/// In the order in which they are loaded and saved, and so announced.
inline constexpr EffectSetting effectSettings[] = {
    {&themeKey("SmartPlacement"),         &Ui_EffectForm::smartPlacementCheckBox},
    {&themeKey("OpaqueMove"),             &Ui_EffectForm::opaqueMoveCheckBox},
    {&themeKey("OpaqueResize"),           &Ui_EffectForm::opaqueResizeCheckBox},
    {&themeKey("FullOpaque"),             &Ui_EffectForm::opaqueResizeCheckBox, nullptr, false},
    {&themeKey("StartMenuMapSpeed"),      &Ui_EffectForm::startMenuMapSpeedSpinBox},
    {&themeKey("ArrangeWindowSpeed"),     &Ui_EffectForm::arrangeWindowSpeedSpinBox, "10"},
    {&themeKey("GradWindowMapSpeed"),     &Ui_EffectForm::gradWindowMapSpeedSpinBox, "10"},
    {&themeKey("GradWindowMapStyle"),     &Ui_EffectForm::gradWindowMapStyleComboBox},
    {&themeKey("MenuDelayTime"),          &Ui_EffectForm::menuDelayTimeSpinBox},
    {&themeKey("MenuDelayTime2"),         &Ui_EffectForm::menuDelayTime2SpinBox},
    {&themeKey("GradMenuMapSpeed"),       &Ui_EffectForm::gradMenuMapSpeedSpinBox},
    {&themeKey("GradTaskbarMotionSpeed"), &Ui_EffectForm::gradTaskbarMotionSpeedSpinBox},
    {&themeKey("TaskbarShowDelay"),       &Ui_EffectForm::taskbarShowDelaySpinBox},
    {&themeKey("TaskbarHideDelay"),       &Ui_EffectForm::taskbarHideDelaySpinBox},
    {&themeKey("PagingBeltSize"),         &Ui_EffectForm::pagingBeltSizeSpinBox},
    {&themeKey("PagingResistance"),       &Ui_EffectForm::pagingResistanceSpinBox},
    {&themeKey("PagingSpeed"),            &Ui_EffectForm::pagingSpeedSpinBox},
    {&themeKey("PagingShiftCursor"),      &Ui_EffectForm::pagingShiftCursorSpinBox},
    {&themeKey("MenuTransparency"),       &Ui_EffectForm::menuTransparencySpinBox},
    {&themeKey("MenuTransparency2"),      &Ui_EffectForm::menuTransparency2SpinBox},
};
// clang-format on

/// The size of window thumbnails: any size loads as checked, a checked box is saved as the one size there is. It
/// stands apart because it is saved after the compositing values.
inline constexpr const ThemeKey &thumbnailKey = themeKey("ThumbSize");
inline constexpr int thumbnailSize = 250;
