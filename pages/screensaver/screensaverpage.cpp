#include "pages/screensaver/screensaverpage.h"

#include "pages/common/waitcursor.h"
#include "pages/screensaver/screensaversettings.h"
#include "settings/updatevalues.h"

#include <QVariant>

ScreensaverPage::ScreensaverPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ScreensaverForm>())
{
    m_ui->setupUi(this);
    for (const NumberSetting &setting : numberSettings)
        (m_ui.get()->*setting.spinBox)->setMaximum(setting.key->maximum / setting.unit);
}

ScreensaverPage::~ScreensaverPage() = default;

bool ScreensaverPage::loadValues(QazSettings *settings, bool /*restore*/)
{
    const WaitCursor waitCursor;
    for (const NumberSetting &setting : numberSettings)
        (m_ui.get()->*setting.spinBox)->setValue(storedText(settings, *setting.key).toInt() / setting.unit);
    m_ui->startAutomaticallyCheckBox->setChecked(m_ui->minutesToStartSpinBox->value() != 0);
    for (const TruthSetting &setting : truthSettings)
        (m_ui.get()->*setting.checkBox)->setChecked(QVariant(storedText(settings, *setting.key)).toBool());
    // Loading may run again, so the connections are unique.
    for (const QSpinBox *spinBox : findChildren<QSpinBox *>()) {
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), this, &ScreensaverPage::changedSignal,
                Qt::UniqueConnection);
        connect(spinBox, &QSpinBox::textChanged, this, &ScreensaverPage::changedSignal, Qt::UniqueConnection);
    }
    for (const QCheckBox *checkBox : findChildren<QCheckBox *>())
        connect(checkBox, &QCheckBox::stateChanged, this, &ScreensaverPage::changedSignal,
                Qt::UniqueConnection);
    loaded = true;
    return true;
}

void ScreensaverPage::saveValues(QazSettings *settings)
{
    for (const NumberSetting &setting : numberSettings) {
        const QSpinBox *spinBox = m_ui.get()->*setting.spinBox;
        const bool isOff = spinBox == m_ui->minutesToStartSpinBox
                           && !m_ui->startAutomaticallyCheckBox->isChecked();
        updateIntValue(settings, QLatin1String(setting.key->name), QLatin1String(setting.key->defaultText),
                       isOff ? 0 : spinBox->value() * setting.unit);
    }
    for (const TruthSetting &setting : truthSettings)
        updateBoolValue(settings, QLatin1String(setting.key->name), QLatin1String(setting.key->defaultText),
                        (m_ui.get()->*setting.checkBox)->isChecked());
}
