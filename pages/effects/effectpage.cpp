#include "pages/effects/effectpage.h"

#include "pages/common/waitcursor.h"
#include "pages/effects/compositesettings.h"
#include "pages/effects/effectsettings.h"
#include "platform/qazsettings.h"
#include "settings/textvalues.h"
#include "settings/updatevalues.h"

#include <QSignalBlocker>

namespace {

/// By index of the combo box. The first is shown as "None", but the window manager calls it "Normal".
QStringList mapStyles()
{
    return closedSet(themeKey("GradWindowMapStyle"));
}

constexpr int animatedMapSpeed = 15;
constexpr int smallestPagingBelt = 2;

// What a setting's text means depends on its widget alone: one overload each for load and save.

void showText(QCheckBox *box, const QString &text)
{
    box->setChecked(countsAsTrue(text));
}

void showText(QSpinBox *box, const QString &text)
{
    box->setValue(text.toInt());
}

void showText(QComboBox *box, const QString &text)
{
    box->setCurrentIndex(qMax(0, mapStyles().indexOf(text)));
}

void updateFrom(QazSettings *settings, const QString &key, const QString &defaultText, const QCheckBox *box)
{
    updateBoolValue(settings, key, defaultText, box->isChecked());
}

void updateFrom(QazSettings *settings, const QString &key, const QString &defaultText, const QSpinBox *box)
{
    updateIntValue(settings, key, defaultText, box->value());
}

void updateFrom(QazSettings *settings, const QString &key, const QString &defaultText, const QComboBox *box)
{
    updateStringValue(settings, key, defaultText, mapStyles().at(box->currentIndex()));
}

} // namespace

EffectPage::EffectPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::EffectForm>())
{
    m_ui->setupUi(this);
    for (const EffectSetting &setting : effectSettings) {
        const auto describe = [this, &key = *setting.key](auto member) {
            auto *widget = m_ui.get()->*member;
            widget->setToolTip(meaning(key));
            if constexpr (std::is_same_v<decltype(widget), QSpinBox *>)
                widget->setRange(key.minimum, key.maximum);
        };
        std::visit(describe, setting.widget);
    }
    for (QLabel *label : findChildren<QLabel *>())
        label->setToolTip(label->buddy()->toolTip());
    // Menu transparency is loaded and saved, but no window manager of today draws it.
    m_ui->pseudoTransparencyButtonGroup->hide();
    connectEdits();
}

EffectPage::~EffectPage() = default;

bool EffectPage::loadValues(QazSettings *settings)
{
    const WaitCursor waitCursor;
    const QSignalBlocker blocker(this); // what it sets is no edit
    for (const EffectSetting &setting : effectSettings) {
        if (setting.isLoaded)
            loadSetting(settings, setting);
    }
    m_ui->pagingGroupBox->setChecked(m_ui->pagingBeltSizeSpinBox->value() != 0);
    m_ui->thumbCheckBox->setChecked(storedText(settings, thumbnailKey).toInt() != 0);
    const CompositeState state = loadComposite(settings, compositeState(), &comptonConfigPath);
    m_ui->compositeGroupBox->setChecked(state.managerOn);
    m_ui->transparencyCheckBox->setChecked(state.transparency);
    m_ui->shadowCheckBox->setChecked(state.shadow);
    if (m_ui->gradWindowMapStyleComboBox->currentIndex() == 0)
        m_ui->gradWindowMapSpeedSpinBox->setEnabled(false);
    loaded = true;
    return true;
}

bool EffectPage::saveValues(QazSettings *settings)
{
    for (const EffectSetting &setting : effectSettings)
        saveSetting(settings, setting);
    saveComposite(settings, compositeState(), comptonConfigPath);
    if (m_ui->thumbCheckBox->isEnabled())
        updateIntValue(settings, QLatin1String(thumbnailKey.name), QLatin1String(thumbnailKey.defaultText),
                       m_ui->thumbCheckBox->isChecked() ? thumbnailSize : 0);
    return true;
}

void EffectPage::mapAnimationSlot(int index)
{
    m_ui->gradWindowMapSpeedSpinBox->setEnabled(index != 0);
    m_ui->gradWindowMapSpeedSpinBox->setValue(index != 0 ? animatedMapSpeed : 0);
}

void EffectPage::pagingBeltSlot(bool on)
{
    // The group box itself enables and disables what is in it.
    QSpinBox *belt = m_ui->pagingBeltSizeSpinBox;
    if (!on)
        belt->setValue(0);
    else if (belt->value() == 0)
        belt->setValue(smallestPagingBelt);
}

void EffectPage::loadSetting(const QazSettings *settings, const EffectSetting &setting)
{
    const QString text = storedText(settings, *setting.key);
    std::visit([this, &text](auto widget) { showText(m_ui.get()->*widget, text); }, setting.widget);
}

void EffectPage::saveSetting(QazSettings *settings, const EffectSetting &setting) const
{
    const QLatin1String key(setting.key->name);
    const QLatin1String defaultText(setting.saveDefault ? setting.saveDefault : setting.key->defaultText);
    std::visit([&](auto widget) { updateFrom(settings, key, defaultText, m_ui.get()->*widget); },
               setting.widget);
}

CompositeState EffectPage::compositeState() const
{
    return {m_ui->compositeGroupBox->isChecked(), m_ui->transparencyCheckBox->isChecked(),
            m_ui->shadowCheckBox->isChecked()};
}

void EffectPage::connectEdits()
{
    for (const QSpinBox *box : findChildren<QSpinBox *>())
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &EffectPage::changedSignal);
    for (const QCheckBox *box : findChildren<QCheckBox *>())
        connect(box, box == m_ui->smartPlacementCheckBox ? &QCheckBox::toggled : &QCheckBox::clicked, this,
                &EffectPage::changedSignal);
    const QComboBox *style = m_ui->gradWindowMapStyleComboBox;
    connect(style, qOverload<int>(&QComboBox::activated), this, &EffectPage::changedSignal);
    connect(style, qOverload<int>(&QComboBox::activated), this, &EffectPage::mapAnimationSlot);
    connect(m_ui->compositeGroupBox, &QGroupBox::clicked, this, &EffectPage::changedSignal);
    connect(m_ui->pagingGroupBox, &QGroupBox::toggled, this, &EffectPage::changedSignal);
    connect(m_ui->pagingGroupBox, &QGroupBox::toggled, this, &EffectPage::pagingBeltSlot);
}
