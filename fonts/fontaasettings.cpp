#include "fonts/fontaasettings.h"

#include "base/chandle.h"
#include "fonts/kxftconfig.h"
#include "platform/qazhelp.h"
#include "settings/renderingstore.h"
#include "ui_fontaasettingsform.h"

#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

#include <type_traits>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_LCD_FILTER_H

namespace {

/// A picture of one pixel that shows where its red, green and blue stripes lie.
QPixmap subPixelSwatch(SubPixelOrder order)
{
    const QRgb redToBlue[] = {0xe01b24, 0x26a269, 0x1a5fb4};
    const QRgb blueToRed[] = {0x1a5fb4, 0x26a269, 0xe01b24};
    const bool beginsWithRed = order == SubPixelOrder::Rgb || order == SubPixelOrder::VerticalRgb;
    const bool isVertical = order == SubPixelOrder::VerticalRgb || order == SubPixelOrder::VerticalBgr;
    const int stripes = std::size(redToBlue);
    const QImage pixel(reinterpret_cast<const uchar *>(beginsWithRed ? redToBlue : blueToRed),
                       isVertical ? 1 : stripes, isVertical ? stripes : 1, QImage::Format_RGB32);
    return QPixmap::fromImage(pixel.scaled(12, 12));
}

/// Whether the FreeType library can filter for the sub-pixels of a display; yes when it can't be asked.
bool isLcdFilteringSupported()
{
    FT_Library handle = nullptr;
    FT_Init_FreeType(&handle);
    const std::unique_ptr<std::remove_pointer_t<FT_Library>, Release<FT_Done_FreeType>> library(handle);
    return FT_Library_SetLcdFilter(handle, FT_LCD_FILTER_DEFAULT) != FT_Err_Unimplemented_Feature;
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
    for (const QDoubleSpinBox *spinBox : {m_ui->excludeFromSpinBox, m_ui->excludeToSpinBox})
        connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &FontAASettings::rangeChanged);
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

    const KXftConfig config;
    showRange(config.excludePixelRange());

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
    KXftConfig config;
    const SubPixelOrder order = m_ui->useSubPixelCheckBox->isChecked() ? SubPixelOrder(
                                    m_ui->subPixelTypeCombo->currentIndex() + int(SubPixelOrder::Rgb))
                                                                       : SubPixelOrder::None;
    const HintStyle style = HintStyle(m_ui->hintStyleCombo->currentIndex() + int(HintStyle::None));
    config.setAntiAliasing(useAntiAliasing);
    config.setExcludePixelRange(m_range);
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
    const ExcludeRange shown = range.isZero() ? ExcludeRange{0, 14} : range;
    m_ui->excludeRangeCheckBox->setChecked(!range.isZero());
    m_ui->excludeFromSpinBox->setValue(shown.from);
    m_ui->excludeToSpinBox->setValue(shown.to);
    m_range = range;
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
