#include "fonts/fontaasettings.h"

#include "fonts/kxftconfig.h"
#include "fonts/lcdfiltering.h"
#include "fonts/subpixelswatch.h"
#include "platform/qazhelp.h"
#include "settings/renderingstore.h"
#include "ui_fontaasettingsform.h"

#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

namespace {

constexpr int required = KXftConfig::SubPixelType | KXftConfig::ExcludedRange | KXftConfig::AntiAlias
                         | KXftConfig::HintingStyle;

constexpr SubPixelOrder subPixelOrders[] = {SubPixelOrder::Rgb, SubPixelOrder::Bgr,
                                            SubPixelOrder::VerticalRgb, SubPixelOrder::VerticalBgr};
constexpr HintStyle hintStyles[] = {HintStyle::None, HintStyle::Slight, HintStyle::Medium, HintStyle::Full};

constexpr ExcludeRange defaultPixels{0, 14};
constexpr ExcludeRange defaultPoints{0, 10};

/// The value that \a spinBox shows for \a value.
double shownValue(const QDoubleSpinBox *spinBox, double value)
{
    // Rounded as text, as the spin box does it: 8.35 lies below its decimal digits and shows as 8.3.
    const double rounded = QString::number(value, 'f', spinBox->decimals()).toDouble();
    return qBound(spinBox->minimum(), rounded, spinBox->maximum());
}

} // namespace

FontAASettings::FontAASettings(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::FontAASettingsForm>())
{
    m_ui->setupUi(this);
    for (const SubPixelOrder order : subPixelOrders)
        m_ui->subPixelTypeCombo->addItem(subPixelSwatch(order), FontRendering::displayName(order));
    for (const HintStyle style : hintStyles)
        m_ui->hintStyleCombo->addItem(FontRendering::displayName(style));
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &FontAASettings::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &FontAASettings::reject);

    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            [] { qazHelpShow(QStringLiteral("antialiasing")); });

    showExcludeRange(defaultRange());
    load();

    connect(m_ui->excludeRangeCheckBox, &QCheckBox::toggled, this, &FontAASettings::rangeChanged);
    connect(m_ui->useSubPixelCheckBox, &QCheckBox::toggled, this, &FontAASettings::changed);
    for (QDoubleSpinBox *spinBox : {m_ui->excludeFromSpinBox, m_ui->excludeToSpinBox})
        connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &FontAASettings::rangeChanged);
    for (QComboBox *combo : {m_ui->subPixelTypeCombo, m_ui->hintStyleCombo})
        connect(combo, &QComboBox::textActivated, this, &FontAASettings::changed);
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
    const ExcludeRange range = showsPixels() ? config.excludePixelRange() : config.excludeRange();
    m_ui->excludeRangeCheckBox->setChecked(!range.isZero());
    showExcludeRange(range.isZero() ? defaultRange() : range);
    m_rangeEdited = false;

    const SubPixelOrder order = config.subPixelType();
    const int orderIndex = order == SubPixelOrder::None
                               ? -1
                               : m_ui->subPixelTypeCombo->findText(FontRendering::displayName(order));
    m_ui->useSubPixelCheckBox->setChecked(orderIndex >= 0);
    if (orderIndex >= 0)
        m_ui->subPixelTypeCombo->setCurrentIndex(orderIndex);

    if (config.hintStyle() == HintStyle::NotSet) {
        config.setHintStyle(HintStyle::Medium);
        storeRendering(
            {{QLatin1String(RenderingKey::hintStyle), FontRendering::fileName(HintStyle::Medium)}});
    }
    m_ui->hintStyleCombo->setCurrentText(FontRendering::displayName(config.hintStyle()));

    enableWidgets();
    return config.antiAliasing();
}

bool FontAASettings::save(bool useAntiAliasing, QString *error)
{
    KXftConfig config(required);
    config.reset();
    const SubPixelOrder order = chosenOrder();
    const HintStyle style = chosenHintStyle();
    config.setAntiAliasing(useAntiAliasing);
    if (const std::optional<ExcludeRange> range = editedRange(config); range && showsPixels())
        config.setExcludePixelRange(*range);
    else if (range)
        config.setExcludeRange(*range);
    config.setSubPixelType(order);
    config.setHintStyle(style);
    const bool fileChanged = config.changed();
    if (QString reason; !config.apply(&reason)) {
        *error = tr("The font settings could not be saved in the file '%1': %2")
                     .arg(config.fileName(), reason);
        return false;
    }
    m_rangeEdited = false;

    const QString styleName = FontRendering::fileName(style);
    const bool hintStyleChanged = storedRendering(RenderingKey::hintStyle).toString() != styleName;
    storeRendering({{QLatin1String(RenderingKey::subPixel), FontRendering::fileName(order)},
                    {QLatin1String(RenderingKey::antialias), useAntiAliasing},
                    {QLatin1String(RenderingKey::hintStyle), styleName}});
    return hintStyleChanged || fileChanged;
}

void FontAASettings::defaults()
{
    m_ui->excludeRangeCheckBox->setChecked(true);
    showExcludeRange(defaultRange());
    m_ui->useSubPixelCheckBox->setChecked(false);
    m_ui->hintStyleCombo->setCurrentText(FontRendering::displayName(HintStyle::Medium));
    m_rangeEdited = true; // also when the boxes show the default already, for something near it
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
    m_rangeEdited = true;
    changed();
}

bool FontAASettings::showsPixels() const
{
    const QString suffix = m_ui->excludeFromSpinBox->suffix();
    return suffix.contains(QLatin1String("pix")) || suffix.contains(QLatin1String("px"));
}

ExcludeRange FontAASettings::defaultRange() const
{
    return showsPixels() ? defaultPixels : defaultPoints;
}

void FontAASettings::showExcludeRange(const ExcludeRange &range)
{
    m_ui->excludeFromSpinBox->setValue(range.from);
    m_ui->excludeToSpinBox->setValue(range.to);
}

std::optional<ExcludeRange> FontAASettings::editedRange(const KXftConfig &config) const
{
    if (!m_ui->excludeRangeCheckBox->isChecked())
        return ExcludeRange{};
    const ExcludeRange inFile = showsPixels() ? config.excludePixelRange() : config.excludeRange();
    const ExcludeRange shown{m_ui->excludeFromSpinBox->value(), m_ui->excludeToSpinBox->value()};
    // The spin boxes show fewer digits and a smaller range than a file may hold: what was not edited stays.
    const bool showsFile = shown.equals(
        {shownValue(m_ui->excludeFromSpinBox, inFile.from), shownValue(m_ui->excludeToSpinBox, inFile.to)});
    return showsFile && !m_rangeEdited ? std::nullopt : std::make_optional(shown);
}

SubPixelOrder FontAASettings::chosenOrder() const
{
    const QString shown = m_ui->subPixelTypeCombo->currentText();
    for (const SubPixelOrder order : subPixelOrders) {
        if (m_ui->useSubPixelCheckBox->isChecked() && shown == FontRendering::displayName(order))
            return order;
    }
    return SubPixelOrder::None;
}

HintStyle FontAASettings::chosenHintStyle() const
{
    for (const HintStyle style : hintStyles) {
        if (m_ui->hintStyleCombo->currentText() == FontRendering::displayName(style))
            return style;
    }
    return HintStyle::Medium;
}

void FontAASettings::enableWidgets()
{
    const bool excludes = m_ui->excludeRangeCheckBox->isChecked();
    m_ui->excludeFromSpinBox->setEnabled(excludes);
    m_ui->excludeToSpinBox->setEnabled(excludes);
    m_ui->excludeToLabel->setEnabled(excludes);

    m_ui->useSubPixelCheckBox->setEnabled(isLcdFilteringSupported());
    if (!m_ui->useSubPixelCheckBox->isEnabled())
        m_ui->useSubPixelCheckBox->setChecked(false);
    m_ui->subPixelTypeCombo->setEnabled(m_ui->useSubPixelCheckBox->isEnabled()
                                        && m_ui->useSubPixelCheckBox->isChecked());
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(m_changesMade);
}
