#include "fonts/fontaasettings.h"

#include "base/chandle.h"
#include "fonts/kxftconfig.h"
#include "platform/qazhelp.h"
#include "settings/renderingstore.h"
#include "ui_fontaasettingsform.h"

#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

#include <optional>
#include <type_traits>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_LCD_FILTER_H

namespace {

constexpr int required = KXftConfig::SubPixelType | KXftConfig::ExcludedRange | KXftConfig::AntiAlias
                         | KXftConfig::HintingStyle;

/// A picture of one pixel that shows where its red, green and blue stripes lie.
QPixmap subPixelSwatch(SubPixelOrder order)
{
    constexpr int extent = 12;
    constexpr int stripe = extent / 3;
    const QColor colors[] = {0xe01b24, 0x26a269, 0x1a5fb4};
    const bool isVertical = order == SubPixelOrder::VerticalRgb || order == SubPixelOrder::VerticalBgr;
    const bool beginsWithRed = order == SubPixelOrder::Rgb || order == SubPixelOrder::VerticalRgb;
    QPixmap swatch(extent, extent);
    QPainter painter(&swatch);
    for (int i = 0; i < 3; ++i)
        painter.fillRect(isVertical ? QRect(0, i * stripe, extent, stripe)
                                    : QRect(i * stripe, 0, stripe, extent),
                         colors[beginsWithRed ? i : 2 - i]);
    return swatch;
}

/// Whether the FreeType library can filter for the sub-pixels of a display; yes while it can't be asked.
bool isLcdFilteringSupported()
{
    static std::optional<bool> answer;
    FT_Library handle = nullptr;
    if (!answer && FT_Init_FreeType(&handle) == 0) {
        const std::unique_ptr<std::remove_pointer_t<FT_Library>, Release<FT_Done_FreeType>> library(handle);
        answer = FT_Library_SetLcdFilter(handle, FT_LCD_FILTER_DEFAULT) != FT_Err_Unimplemented_Feature;
    }
    return answer.value_or(true);
}

} // namespace

FontAASettings::FontAASettings(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::FontAASettingsForm>())
{
    m_ui->setupUi(this);
    m_ui->buttonBox->setContentsMargins(10, 0, 10, 10);
    m_ui->subPixelTypeCombo->setToolTip(m_ui->useSubPixelCheckBox->toolTip());
    m_ui->hintStyleCombo->setToolTip(m_ui->hintingLabel->toolTip());
    for (QWidget *widget : findChildren<QWidget *>())
        widget->setWhatsThis(widget->toolTip());
    for (int order = int(SubPixelOrder::Rgb); order < int(SubPixelOrder::Count); ++order)
        m_ui->subPixelTypeCombo->addItem(subPixelSwatch(SubPixelOrder(order)),
                                         FontRendering::displayName(SubPixelOrder(order)));
    for (int style = int(HintStyle::None); style < int(HintStyle::Count); ++style)
        m_ui->hintStyleCombo->addItem(FontRendering::displayName(HintStyle(style)));
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &FontAASettings::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &FontAASettings::reject);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            [] { qazHelpShow(QStringLiteral("antialiasing")); });

    connect(m_ui->excludeRangeCheckBox, &QCheckBox::toggled, this, &FontAASettings::rangeChanged);
    connect(m_ui->useSubPixelCheckBox, &QCheckBox::toggled, this, &FontAASettings::changed);
    for (QDoubleSpinBox *spinBox : {m_ui->excludeFromSpinBox, m_ui->excludeToSpinBox}) {
        spinBox->setDecimals(1);
        spinBox->setMaximum(48);
        connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &FontAASettings::rangeChanged);
    }
    for (QComboBox *combo : {m_ui->subPixelTypeCombo, m_ui->hintStyleCombo})
        connect(combo, &QComboBox::textActivated, this, &FontAASettings::changed);
    load();
}

FontAASettings::~FontAASettings() = default;

bool FontAASettings::load()
{
    // What the file holds is no edit.
    const QSignalBlocker blockers[] = {
        QSignalBlocker(m_ui->excludeRangeCheckBox), QSignalBlocker(m_ui->excludeFromSpinBox),
        QSignalBlocker(m_ui->excludeToSpinBox), QSignalBlocker(m_ui->useSubPixelCheckBox)};

    KXftConfig config(required);
    config.reset();
    showRange(showsPixels() ? config.excludePixelRange() : config.excludeRange());

    const SubPixelOrder order = config.subPixelType();
    m_ui->useSubPixelCheckBox->setChecked(order != SubPixelOrder::None);
    if (order != SubPixelOrder::None)
        m_ui->subPixelTypeCombo->setCurrentIndex(int(order) - int(SubPixelOrder::Rgb));

    HintStyle style = config.hintStyle();
    if (style == HintStyle::NotSet) {
        style = HintStyle::Medium;
        storeRendering({{QLatin1String(RenderingKey::hintStyle), FontRendering::fileName(style)}});
    }
    m_ui->hintStyleCombo->setCurrentIndex(int(style) - int(HintStyle::None));

    enableWidgets();
    return config.antiAliasing();
}

bool FontAASettings::save(bool useAntiAliasing, QString *error)
{
    KXftConfig config(required);
    config.reset();
    const SubPixelOrder order = m_ui->useSubPixelCheckBox->isChecked() ? SubPixelOrder(
                                    m_ui->subPixelTypeCombo->currentIndex() + int(SubPixelOrder::Rgb))
                                                                       : SubPixelOrder::None;
    const HintStyle style = HintStyle(m_ui->hintStyleCombo->currentIndex() + int(HintStyle::None));
    config.setAntiAliasing(useAntiAliasing);
    if (showsPixels())
        config.setExcludePixelRange(m_range);
    else
        config.setExcludeRange(m_range);
    config.setSubPixelType(order);
    config.setHintStyle(style);
    const bool fileChanged = config.changed();
    if (QString reason; !config.apply(&reason)) {
        *error = tr("The font settings could not be saved in the file '%1': %2")
                     .arg(config.fileName(), reason);
        return false;
    }

    const QString styleName = FontRendering::fileName(style);
    const bool hintStyleChanged = storedRendering(RenderingKey::hintStyle).toString() != styleName;
    storeRendering({{QLatin1String(RenderingKey::subPixel), FontRendering::fileName(order)},
                    {QLatin1String(RenderingKey::antialias), useAntiAliasing},
                    {QLatin1String(RenderingKey::hintStyle), styleName}});
    return hintStyleChanged || fileChanged;
}

void FontAASettings::defaults()
{
    showRange({});
    m_ui->excludeRangeCheckBox->setChecked(true); // takes the shown range
    m_ui->useSubPixelCheckBox->setChecked(false);
    m_ui->hintStyleCombo->setCurrentIndex(int(HintStyle::Medium) - int(HintStyle::None));
    enableWidgets();
}

int FontAASettings::exec()
{
    if (QDialog::exec() == QDialog::Accepted)
        return m_changesMade;
    load();
    return false;
}

void FontAASettings::changed()
{
    m_changesMade = true;
    enableWidgets();
}

void FontAASettings::rangeChanged()
{
    m_range = m_ui->excludeRangeCheckBox->isChecked()
                  ? ExcludeRange{m_ui->excludeFromSpinBox->value(), m_ui->excludeToSpinBox->value()}
                  : ExcludeRange{};
    changed();
}

void FontAASettings::showRange(const ExcludeRange &range)
{
    const ExcludeRange shown = range.isZero() ? ExcludeRange{0, showsPixels() ? 14.0 : 10.0} : range;
    m_ui->excludeRangeCheckBox->setChecked(!range.isZero());
    m_ui->excludeFromSpinBox->setValue(shown.from);
    m_ui->excludeToSpinBox->setValue(shown.to);
    m_range = range;
}

bool FontAASettings::showsPixels() const
{
    const QString suffix = m_ui->excludeFromSpinBox->suffix();
    return suffix.contains(QLatin1String("pix")) || suffix.contains(QLatin1String("px"));
}

void FontAASettings::enableWidgets()
{
    const bool excludes = m_ui->excludeRangeCheckBox->isChecked();
    m_ui->excludeFromSpinBox->setEnabled(excludes);
    m_ui->excludeToSpinBox->setEnabled(excludes);
    m_ui->excludeToLabel->setEnabled(excludes);

    const bool canFilter = isLcdFilteringSupported();
    m_ui->useSubPixelCheckBox->setEnabled(canFilter);
    if (!canFilter)
        m_ui->useSubPixelCheckBox->setChecked(false);
    m_ui->subPixelTypeCombo->setEnabled(m_ui->useSubPixelCheckBox->isChecked());
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(m_changesMade);
}
