#include "fonts/kfonts.h"

#include "fonts/fontaasettings.h"
#include "fonts/fontsfile.h"
#include "fonts/fontuseitem.h"
#include "fonts/xresources.h"
#include "freedesktop/xresources.h"
#include "pages/common/messagebox.h"
#include "platform/setxrdbparameterinfile.h"
#include "settings/fontroles.h"
#include "settings/renderingstore.h"
#include "settings/rolefonttext.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

enum AntiAliasing { AaEnabled, AaSystemSettings, AaDisabled }; // indexes of the combo box

// A DPI from 1 to 69 snaps to one of these.
constexpr int noDpi = 0;
constexpr int leastDpi = 70;
// Where the last snap went; the next one goes the other way when the value came from above it.
int lastSnap = noDpi;

QLabel *rowLabel(const QString &text, const QString &name, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(buddy);
    return label;
}

void setHelp(QWidget *widget, const QString &help)
{
    widget->setToolTip(help);
    widget->setWhatsThis(help);
}

/// Sets the line of the DPI in the user's X resources, or removes it for 0. A file that was made for the line goes with
/// it.
void writeDpiToResourceFile(int dpi)
{
    const QString file = userXresources();
    const QString isOurs = QLatin1String(RenderingKey::madeXresources);
    if (dpi != 0 && !QFileInfo::exists(file))
        storeRendering({{isOurs, true}});
    const QByteArray value = QByteArray::number(dpi);
    setXrdbParameterInFile(QFile::encodeName(file).constData(), "Xft.dpi:", " ",
                           dpi != 0 ? value.constData() : nullptr, false);
    if (QFileInfo(file).size() == 0 && storedRendering(RenderingKey::madeXresources).toBool()
        && QFile::remove(file))
        storeRendering({{isOurs, false}});
}

} // namespace

KFonts::KFonts(QWidget *parent)
    : QWidget(parent)
    , aaMode(AaSystemSettings)
    , aaModeAtLoad(AaSystemSettings)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *roles = new QGridLayout;
    layout->addLayout(roles);
    addRoles(roles);

    auto *rendering = new QHBoxLayout;
    layout->addLayout(rendering);
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(1);
    grid->setHorizontalSpacing(10);
    grid->setColumnStretch(3, 10);
    rendering->addLayout(grid);
    addAntiAliasingRow(grid);
    addDpiRow(grid);
    rendering->addStretch();
    auto *adjustAll = new QPushButton(tr("Ad&just All Fonts..."), this);
    adjustAll->setObjectName(QStringLiteral("adjustAllButton"));
    setHelp(adjustAll, tr("Click to change all fonts"));
    connect(adjustAll, &QPushButton::clicked, this, &KFonts::slotApplyFontDiff);
    rendering->addWidget(adjustAll);
    layout->addStretch(1);

    m_aaSettings = new FontAASettings(this);
}

void KFonts::addRoles(QGridLayout *grid)
{
    grid->setColumnStretch(1, 1);
    for (const FontRole &role : fontRoles) {
        const QString key = QLatin1String(role.key->name);
        const QFont defaultFont = textToFont(QLatin1String(role.key->defaultText));
        auto *item = new FontUseItem(this, tr(role.key->title), key, defaultFont);
        item->setObjectName(key);
        m_fontUseItems.append(item);
        connect(item, &FontUseItem::fontSelected, this, &KFonts::fontSelected);
        QLabel *label = rowLabel(tr(role.key->title), key + QLatin1String("Label"), item, this);
        label->setWhatsThis(tr(role.help));
        const int row = m_fontUseItems.size() - 1;
        grid->addWidget(label, row, 0);
        grid->addWidget(item, row, 1);
    }
}

void KFonts::addAntiAliasingRow(QGridLayout *grid)
{
    m_aaComboBox = new QComboBox(this);
    m_aaComboBox->setObjectName(QStringLiteral("aaComboBox"));
    for (const QString &mode : {tr("Enabled"), tr("System Settings"), tr("Disabled")}) {
        m_aaComboBox->addItem(mode);
        // A style may scale the arrow with the screen's resolution, but not the room for it.
        m_aaComboBox->setMinimumContentsLength(qMax(m_aaComboBox->minimumContentsLength(), mode.size()));
    }
    setHelp(m_aaComboBox, tr("If this option is selected, DE will smooth the edges of curves in fonts."));
    connect(m_aaComboBox, qOverload<int>(&QComboBox::activated), this, &KFonts::slotUseAntiAliasing);
    m_configureButton = new QPushButton(tr("Configure..."), this);
    m_configureButton->setObjectName(QStringLiteral("configureButton"));
    connect(m_configureButton, &QPushButton::clicked, this, &KFonts::slotCfgAa);
    grid->addWidget(rowLabel(tr("Use a&nti-aliasing:"), QStringLiteral("aaLabel"), m_aaComboBox, this), 0, 0);
    grid->addWidget(m_aaComboBox, 0, 1);
    grid->addWidget(m_configureButton, 0, 2);
}

void KFonts::addDpiRow(QGridLayout *grid)
{
    m_dpiSpinBox = new QSpinBox(this);
    m_dpiSpinBox->setObjectName(QStringLiteral("dpiSpinBox"));
    m_dpiSpinBox->setRange(noDpi, 400);
    m_dpiSpinBox->setSingleStep(10);
    m_dpiSpinBox->setSpecialValueText(tr("Disabled"));
    m_dpiSpinBox->setSuffix(tr("dpi"));
    // While "120" is typed, its first digit must not snap; the edit is known from the first key all the same.
    m_dpiSpinBox->setKeyboardTracking(false);
    connect(m_dpiSpinBox->findChild<QLineEdit *>(), &QLineEdit::textEdited, this,
            [this] { emit changed(true); });
    connect(m_dpiSpinBox, qOverload<int>(&QSpinBox::valueChanged), this, &KFonts::slotCfgDpi);
    setHelp(
        m_dpiSpinBox,
        tr("<p>This option forces a specific DPI value for fonts. It may be useful when the real DPI of "
           "the hardware is not detected properly and it is also often misused when poor quality fonts are "
           "used that do not look well with DPI values other than 96 or 120 DPI.</p><p>The use of this "
           "option is generally discouraged. For selecting proper DPI value a better option is explicitly "
           "configuring it for the whole X server if possible (e.g. DisplaySize in xorg.conf or adding "
           "<i>-dpi value</i> to ServerLocalArgs= in /etc/X11/qaz-dm/qaz-dmrc). When fonts do not render "
           "properly with real DPI value better fonts should be used or configuration of font hinting "
           "should be checked.</p>"));
    grid->addWidget(rowLabel(tr("Force fonts DPI:"), QStringLiteral("dpiLabel"), m_dpiSpinBox, this), 1, 0);
    grid->addWidget(m_dpiSpinBox, 1, 1);
}

void KFonts::loadSettings(QazSettings *settings)
{
    for (FontUseItem *item : qAsConst(m_fontUseItems))
        item->loadFont(settings);

    const bool isEnabled = m_aaSettings->load();
    const QVariant systemDecides = storedRendering(RenderingKey::dontChangeAaSettings);
    showAntiAliasing(systemDecides.isNull() || systemDecides.toBool() ? AaSystemSettings
                     : isEnabled                                      ? AaEnabled
                                                                      : AaDisabled);
    aaModeAtLoad = aaMode;
    dpiAtLoad = forcedDpi(storedRendering(RenderingKey::forceFontDpi).toInt(), xftDpiResource());
    m_dpiSpinBox->setValue(dpiAtLoad);
    emit changed(false);
}

void KFonts::showAntiAliasing(int mode)
{
    aaMode = mode;
    m_aaComboBox->setCurrentIndex(mode);
    m_configureButton->setEnabled(mode == AaEnabled);
}

bool KFonts::saveSettings(QazSettings *settings)
{
    m_dpiSpinBox->interpretText(); // what is typed, but not yet ended by Return
    for (FontUseItem *item : qAsConst(m_fontUseItems))
        item->saveFont(settings);

    const int dpi = m_dpiSpinBox->value();
    const bool systemDecides = m_aaComboBox->currentIndex() == AaSystemSettings;
    storeRendering({{QLatin1String(RenderingKey::forceFontDpi), dpi},
                    {QLatin1String(RenderingKey::dontChangeAaSettings), systemDecides}});
    if (dpi == 0 && dpiAtLoad != 0)
        removeDpiFromServer();
    if (dpi != dpiAtLoad)
        writeDpiToResourceFile(dpi);

    QString error;
    const bool fileChanged = !systemDecides && m_aaSettings->save(aaMode == AaEnabled, &error);
    const bool isChanged = fileChanged || aaMode != aaModeAtLoad || dpi != dpiAtLoad;
    if (systemDecides)
        removeUserFontconfigFiles();
    if (!error.isEmpty()) {
        showMessage(this, QMessageBox::Critical, tr("Error"), error);
    } else if (isChanged) {
        aaModeAtLoad = aaMode;
        dpiAtLoad = dpi;
        QMessageBox::information(
            this, tr("Font Settings Changed"),
            tr("<p>Some changes such as anti-aliasing or DPI will only affect newly started "
               "applications.</p>"));
    }
    applyXResources(exportXftSettings);
    emit changed(false);
    // The dialog takes a page that was saved for unedited; after that, this one tells that it is not.
    if (!error.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { emit changed(true); }, Qt::QueuedConnection);
    return isChanged;
}

void KFonts::resetToDefaults()
{
    for (FontUseItem *item : qAsConst(m_fontUseItems))
        item->restoreDefault();
    showAntiAliasing(AaSystemSettings);
    m_aaSettings->defaults();
    m_dpiSpinBox->setValue(noDpi);
    emit changed(true);
}

void KFonts::fontSelected()
{
    emit changed(true);
}

void KFonts::slotApplyFontDiff()
{
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, m_fontUseItems.first()->font(), this);
    if (!accepted)
        return;
    for (FontUseItem *item : qAsConst(m_fontUseItems))
        item->applyChosenFont(chosen);
    emit changed(true);
}

void KFonts::slotUseAntiAliasing()
{
    showAntiAliasing(m_aaComboBox->currentIndex());
    emit changed(true);
}

void KFonts::slotCfgAa()
{
    if (m_aaSettings->exec())
        emit changed(true);
}

void KFonts::slotCfgDpi(int value)
{
    if (value > noDpi && value < leastDpi) {
        lastSnap = value < lastSnap ? noDpi : leastDpi;
        m_dpiSpinBox->setValue(lastSnap);
    }
    emit changed(true);
}
