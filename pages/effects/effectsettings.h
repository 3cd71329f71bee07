#pragma once

#include "ui_effectform.h"

#include <variant>

/// One value of the theme file and the widget that edits it. The widget's class is the value's kind: a check
/// box holds a boolean, a spin box an integer, the combo box the keyword of a window-map style.
struct EffectSetting {
    const char *key;
    const char *loadDefault; ///< nullptr: saved, but never loaded
    const char *saveDefault; ///< differs from loadDefault in a few rows, on purpose
    std::variant<QCheckBox * Ui_EffectForm::*, QSpinBox * Ui_EffectForm::*, QComboBox * Ui_EffectForm::*>
        widget;
};

// clang-format off
/// In the order in which they are loaded and saved, and so announced.
inline constexpr EffectSetting effectSettings[] = {
    {"SmartPlacement",         "true",   "true",   &Ui_EffectForm::smartPlacementCheckBox},
    {"OpaqueMove",             "true",   "true",   &Ui_EffectForm::opaqueMoveCheckBox},
    {"OpaqueResize",           "true",   "true",   &Ui_EffectForm::opaqueResizeCheckBox},
    {"FullOpaque",             nullptr,  "true",   &Ui_EffectForm::opaqueResizeCheckBox},
    {"StartMenuMapSpeed",      "0",      "0",      &Ui_EffectForm::startMenuMapSpeedSpinBox},
    {"ArrangeWindowSpeed",     "0",      "10",     &Ui_EffectForm::arrangeWindowSpeedSpinBox},
    {"GradWindowMapSpeed",     "0",      "10",     &Ui_EffectForm::gradWindowMapSpeedSpinBox},
    {"GradWindowMapStyle",     "Normal", "Normal", &Ui_EffectForm::gradWindowMapStyleComboBox},
    {"MenuDelayTime",          "300",    "300",    &Ui_EffectForm::menuDelayTimeSpinBox},
    {"MenuDelayTime2",         "300",    "300",    &Ui_EffectForm::menuDelayTime2SpinBox},
    {"GradMenuMapSpeed",       "0",      "0",      &Ui_EffectForm::gradMenuMapSpeedSpinBox},
    {"GradTaskbarMotionSpeed", "10",     "10",     &Ui_EffectForm::gradTaskbarMotionSpeedSpinBox},
    {"TaskbarShowDelay",       "500",    "500",    &Ui_EffectForm::taskbarShowDelaySpinBox},
    {"TaskbarHideDelay",       "0",      "0",      &Ui_EffectForm::taskbarHideDelaySpinBox},
    {"PagingBeltSize",         "0",      "0",      &Ui_EffectForm::pagingBeltSizeSpinBox},
    {"PagingResistance",       "1500",   "1500",   &Ui_EffectForm::pagingResistanceSpinBox},
    {"PagingSpeed",            "30",     "30",     &Ui_EffectForm::pagingSpeedSpinBox},
    {"PagingShiftCursor",      "200",    "200",    &Ui_EffectForm::pagingShiftCursorSpinBox},
    {"MenuTransparency",       "0",      "0",      &Ui_EffectForm::menuTransparencySpinBox},
    {"MenuTransparency2",      "0",      "0",      &Ui_EffectForm::menuTransparency2SpinBox},
};
// clang-format on

/// The size of window thumbnails: any size loads as checked, a checked box is saved as the one size there is. It
/// stands apart because it is saved after the compositing values.
struct ThumbnailSetting {
    const char *key;
    const char *defaultText;
    int size;
};
inline constexpr ThumbnailSetting thumbnailSetting = {"ThumbSize", "0", 250};
