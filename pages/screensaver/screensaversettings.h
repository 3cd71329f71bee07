#pragma once

#include "settings/themekeys.h"
#include "ui_screensaverform.h"

/// A number and the spin box that edits it. \a unit is the number of the file's units in one of the form's: delays are
/// shown in minutes and stored in seconds, so 90 s shows as 1 and is saved as 60.
struct NumberSetting {
    const ThemeKey *key;
    int unit;
    QSpinBox *Ui_ScreensaverForm::*spinBox;
};

/// A truth value and the check box that edits it.
struct TruthSetting {
    const ThemeKey *key;
    QCheckBox *Ui_ScreensaverForm::*checkBox;
};

// Both lists are in load and save order; the numbers come first.
// clang-format off
inline constexpr NumberSetting numberSettings[] = {
    {&themeKey("ScreenSaverDelay"),         60, &Ui_ScreensaverForm::minutesToStartSpinBox},
    {&themeKey("LockerDpmsOffTimeout"),     60, &Ui_ScreensaverForm::dpmsOffSpinBox},
    {&themeKey("LockerWrongPasswdTimeout"), 1,  &Ui_ScreensaverForm::wrongPasswordTimeoutSpinBox},
    {&themeKey("LockerBellLevel"),          1,  &Ui_ScreensaverForm::wrongPasswordBellSpinBox}};
inline constexpr TruthSetting truthSettings[] = {
    {&themeKey("LockerTTYLock"),     &Ui_ScreensaverForm::lockTTYCheckBox},
    {&themeKey("LockerXaccessLock"), &Ui_ScreensaverForm::lockXaccessCheckBox}};
// clang-format on
