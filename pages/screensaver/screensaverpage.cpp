#include "pages/screensaver/screensaverpage.h"

#include "pages/common/waitcursor.h"
#include "pages/screensaver/screensaversettings.h"
#include "platform/qazsettings.h"
#include "settings/updatevalues.h"
#include "ui_screensaverform.h"

#include <QCheckBox>
#include <QSpinBox>

namespace {

struct SpinSetting {
    const char *key;
    const char *defaultText;
    bool inMinutes; // shown in minutes, stored in seconds
    QSpinBox *Ui::ScreensaverForm::*spinBox;
};

struct CheckSetting {
    const char *key;
    const char *defaultText;
    QCheckBox *Ui::ScreensaverForm::*checkBox;
};

// Both lists are in load and save order; the numbers come first.
// clang-format off
constexpr SpinSetting spinSettings[] = {
    {"ScreenSaverDelay",         "600", true,  &Ui::ScreensaverForm::minutesToStartSpinBox},
    {"LockerDpmsOffTimeout",     "60",  true,  &Ui::ScreensaverForm::dpmsOffSpinBox},
    {"LockerWrongPasswdTimeout", "2",   false, &Ui::ScreensaverForm::wrongPasswordTimeoutSpinBox},
    {"LockerBellLevel",          "50",  false, &Ui::ScreensaverForm::wrongPasswordBellSpinBox}};
constexpr CheckSetting checkSettings[] = {
    {"LockerTTYLock",     "true",  &Ui::ScreensaverForm::lockTTYCheckBox},
    {"LockerXaccessLock", "false", &Ui::ScreensaverForm::lockXaccessCheckBox}};
// clang-format on

template<typename Setting>
QVariant storedValue(const QazSettings *store, const Setting &setting)
{
    return store->value(QLatin1String(setting.key), QString::fromLatin1(setting.defaultText));
}

} // namespace

ScreensaverPage::ScreensaverPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ScreensaverForm>())
{
    m_ui->setupUi(this);
}

ScreensaverPage::~ScreensaverPage() = default;

bool ScreensaverPage::loadValues(QazSettings *store, bool /*restore*/)
{
    const WaitCursor waitCursor;
    for (const SpinSetting &setting : spinSettings) {
        const int value = storedValue(store, setting).toInt();
        (m_ui.get()->*setting.spinBox)->setValue(setting.inMinutes ? minutesFromSeconds(value) : value);
    }
    m_ui->startAutomaticallyCheckBox->setChecked(m_ui->minutesToStartSpinBox->value() != 0);
    for (const CheckSetting &setting : checkSettings)
        (m_ui.get()->*setting.checkBox)->setChecked(storedValue(store, setting).toBool());
    connectChanges();
    loaded = true;
    return true;
}

void ScreensaverPage::connectChanges()
{
    // Loading may run again, so the connections are unique.
    for (const SpinSetting &setting : spinSettings) {
        const QSpinBox *spinBox = m_ui.get()->*setting.spinBox;
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), this, &ScreensaverPage::changedSignal,
                Qt::UniqueConnection);
        connect(spinBox, &QSpinBox::textChanged, this, &ScreensaverPage::changedSignal, Qt::UniqueConnection);
    }
    for (const QCheckBox *checkBox :
         {m_ui->startAutomaticallyCheckBox, m_ui->lockTTYCheckBox, m_ui->lockXaccessCheckBox})
        connect(checkBox, &QCheckBox::stateChanged, this, &ScreensaverPage::changedSignal,
                Qt::UniqueConnection);
}

void ScreensaverPage::saveValues(QazSettings *store)
{
    for (const SpinSetting &setting : spinSettings) {
        const QSpinBox *spinBox = m_ui.get()->*setting.spinBox;
        const bool isOff = spinBox == m_ui->minutesToStartSpinBox
                           && !m_ui->startAutomaticallyCheckBox->isChecked();
        const int value = setting.inMinutes ? secondsFromMinutes(spinBox->value()) : spinBox->value();
        updateIntValue(store, QLatin1String(setting.key), QString::fromLatin1(setting.defaultText),
                       isOff ? 0 : value);
    }
    for (const CheckSetting &setting : checkSettings)
        updateBoolValue(store, QLatin1String(setting.key), QString::fromLatin1(setting.defaultText),
                        (m_ui.get()->*setting.checkBox)->isChecked());
}
