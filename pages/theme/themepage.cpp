#include "pages/theme/themepage.h"

#include "pages/common/dropfilter.h"
#include "pages/common/messagebox.h"
#include "pages/common/waitcursor.h"
#include "pages/theme/swatches.h"
#include "pages/theme/themelists.h"
#include "pages/theme/themesettings.h"
#include "pages/theme/xserver.h"
#include "platform/qazinit.h"
#include "platform/qazsettings.h"
#include "settings/colorelements.h"
#include "settings/updatevalues.h"
#include "ui_themeform.h"

#include <QColorDialog>
#include <QComboBox>
#include <QInputDialog>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

// Beside the entry's data: the stored texts themselves, which may contain the data's separator.
constexpr int storedRole = Qt::UserRole + 1;

constexpr const ThemeKey &iconThemeKey = themeKey("IconTheme"); // on load the default is empty, on purpose
constexpr const ThemeKey &decorThemeKey = themeKey("DecorTheme");
constexpr int comboIconHeight = 32; // at 96 dpi

QString storedText(const QazSettings *settings, const ThemeKey &key, const QString &defaultText)
{
    return settings->value(QLatin1String(key.name), defaultText).toString();
}

/// Adds \a entries to those of \a combo, and selects the added one named \a current, or nothing.
void addThemes(QComboBox *combo, const QVector<ThemeEntry> &entries, const QString &current)
{
    int selected = -1;
    for (const ThemeEntry &entry : entries) {
        if (entry.name == current)
            selected = combo->count();
        combo->addItem(entry.preview, entry.name);
    }
    combo->setCurrentIndex(selected);
    combo->setEnabled(combo->count() > 0);
}

QString sizeText(const QString &value, const QString &name)
{
    return value + QLatin1String(",   ") + name;
}

} // namespace

ThemePage::ThemePage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ThemeForm>())
{
    m_ui->setupUi(this);
    // The size buttons stay in their place when an element has no end colour.
    QSizePolicy policy = m_ui->color2Button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->color2Button->setSizePolicy(policy);
    m_ui->sizeButton->setIcon(
        ellipsisPixmap(palette().color(QPalette::ButtonText), int(qazDpiScaled(16)), devicePixelRatioF()));
    const auto setMain = [this](const QColor &color) { setColor(0, color); };
    takeColors(m_ui->elementComboBox, setMain);
    takeColors(m_ui->color1Button, setMain);
    takeColors(m_ui->color2Button, [this](const QColor &color) { setColor(1, color); });
    connect(m_ui->elementComboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ThemePage::colorElementSelected);
    connect(m_ui->color1Button, &QPushButton::clicked, this, &ThemePage::selectColor1);
    connect(m_ui->color2Button, &QPushButton::clicked, this, &ThemePage::selectColor2);
    connect(m_ui->sizeButton, &QPushButton::clicked, this, &ThemePage::selectSize);
    // Choosing an element or a size only looks at it; the dialogs behind the buttons tell of their edits themselves.
    for (PreviewComboBox *combo : {m_ui->cursorThemeCombo, m_ui->iconThemeCombo, m_ui->decorThemeCombo}) {
        combo->setPlaceholderText(tr("Default"));
        connect(combo, qOverload<int>(&QComboBox::activated), this, &ThemePage::changedSignal);
    }
}

ThemePage::~ThemePage() = default;

bool ThemePage::loadValues(QazSettings *settings)
{
    const WaitCursor waitCursor;
    const QSignalBlocker blocker(m_ui->elementComboBox); // until the entries have their colours
    for (QComboBox *combo : findChildren<QComboBox *>()) {
        combo->clear();
        // Both make the box's list, which no start needs.
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        combo->setIconSize(QSize(combo == m_ui->sizeComboBox ? 32 : 110, int(qazDpiScaled(comboIconHeight))));
    }
    if (!loaded)
        m_ui->elementComboBox->outlineIcons();
    loadCursorThemes();
    loadIconThemes(settings);
    loadDecorThemes(settings);
    loadColors(settings);
    loadSizes(settings);
    loaded = true;
    return true;
}

void ThemePage::loadCursorThemes()
{
    QComboBox *combo = m_ui->cursorThemeCombo;
    const QString current = currentCursorTheme();
    // Seen only when the theme is not in the list.
    combo->setPlaceholderText(current == QLatin1String("default") ? tr("Default") : current);
    QVector<ThemeEntry> entries;
    if (serverHasExtension("RENDER")) // the previews need it, and so do coloured cursors
        entries = cursorThemeEntries(combo->iconSize());
    addThemes(combo, entries, current);
}

void ThemePage::loadIconThemes(const QazSettings *settings)
{
    QComboBox *combo = m_ui->iconThemeCombo;
    addThemes(combo, iconThemeEntries(combo->iconSize()), storedText(settings, iconThemeKey, QString()));
}

void ThemePage::loadDecorThemes(const QazSettings *settings)
{
    QComboBox *combo = m_ui->decorThemeCombo;
    const QString configured = storedText(settings, decorThemeKey, QString());
    combo->addItem(fillGradient(Qt::transparent, Qt::transparent), tr("No theme"));
    addThemes(combo, decorThemeEntries(combo->iconSize()), configured);
    if (configured.isEmpty())
        combo->setCurrentIndex(0);
}

void ThemePage::loadColors(const QazSettings *settings)
{
    int index = 0;
    for (const ColorElement &element : colorElements()) {
        m_ui->elementComboBox->addItem(tr(element.front()->title));
        setEntryColors(index++, storedColors(element, *settings));
    }
    colorElementSelected(0);
}

/// Stores \a colors with the entry of an element, and shows them in its swatch.
void ThemePage::setEntryColors(int index, const QStringList &colors)
{
    QComboBox *combo = m_ui->elementComboBox;
    combo->setItemData(index, colorItemData(colorElements()[std::size_t(index)], colors));
    combo->setItemData(index, colors, storedRole);
    const QColor first(colors.first());
    const QColor last(colors.last());
    const QColor left = first.isValid() ? first : QColor(Qt::white);
    combo->setItemIcon(index, fillGradient(left, first.isValid() && last.isValid() ? last : left));
}

void ThemePage::loadSizes(const QazSettings *settings)
{
    QComboBox *combo = m_ui->sizeComboBox;
    const double dpi = screenDpi();
    for (const SizeElement &element : sizeElements) {
        const QString value = storedText(settings, *element.key, defaultSize(element, dpi));
        combo->addItem(sizeText(value, tr(element.key->title)), QLatin1String(element.key->name));
        combo->setItemData(combo->count() - 1, value, storedRole);
    }
}

void ThemePage::colorElementSelected(int ind)
{
    const QStringList colors = m_ui->elementComboBox->itemData(ind, storedRole).toStringList();
    const bool hasEnd = colors.size() > 1;
    showColor(m_ui->color1Button, colors.first());
    showColor(m_ui->color2Button, colors.last());
    const ColorElement element = colorElements()[std::size_t(ind)];
    m_ui->elementComboBox->setWhatsThis(meaning(*element.front()));
    m_ui->color1Button->setWhatsThis(meaning(*element.front()));
    m_ui->color2Button->setWhatsThis(meaning(*element.back()));
    m_ui->color2Button->setVisible(hasEnd);
    m_ui->color2Button->setEnabled(hasEnd);
}

void ThemePage::showColor(QPushButton *button, const QColor &color)
{
    const QColor shown = color.isValid() ? color : QColor(Qt::white);
    QPalette palette = button->palette();
    palette.setColor(QPalette::Window, shown);
    button->setPalette(palette);
    const int height = m_ui->sizeComboBox->iconSize().height() / 2;
    const QColor frame = palette.color(QPalette::Active, QPalette::ButtonText);
    button->setIcon(colorButtonPixmap(shown, frame, height, devicePixelRatioF()));
    button->setIconSize(QSize(3 * height, height));
}

void ThemePage::selectColor1()
{
    selectColor(0);
}

void ThemePage::selectColor2()
{
    selectColor(1);
}

void ThemePage::selectColor(int which)
{
    const QStringList colors = m_ui->elementComboBox->currentData(storedRole).toStringList();
    setColor(which, QColorDialog::getColor(colors.at(which), this, QString()));
}

void ThemePage::setColor(int which, const QColor &color)
{
    const int index = m_ui->elementComboBox->currentIndex();
    QStringList colors = m_ui->elementComboBox->currentData(storedRole).toStringList();
    if (!color.isValid() || color.name() == colors.at(which))
        return;
    colors[which] = color.name();
    setEntryColors(index, colors);
    colorElementSelected(index);
    emit changedSignal();
}

QPixmap ThemePage::fillGradient(const QColor &col1, const QColor &col2)
{
    QPixmap swatch(m_ui->elementComboBox->iconSize());
    swatch.fill(Qt::transparent); // the colours may let it shine through
    QLinearGradient gradient(QPointF(), QRectF(swatch.rect()).topRight());
    gradient.setColorAt(0, col1);
    gradient.setColorAt(1, col2);
    QPainter(&swatch).fillRect(swatch.rect(), gradient);
    return swatch;
}

void ThemePage::selectSize()
{
    QComboBox *combo = m_ui->sizeComboBox;
    const int index = combo->currentIndex();
    const SizeElement &element = sizeElements[index]; // the entries stand in the table's order
    const int value = combo->currentData(storedRole).toString().section(QLatin1Char(','), 0, 0).toInt();
    const QString name = tr(element.key->title);
    const QStringList choices = closedSet(*element.key);
    bool isAccepted = false;
    int chosen = value;
    if (choices.isEmpty())
        chosen = QInputDialog::getInt(this, tr("Select size"), name, value, element.key->minimum,
                                      element.key->maximum, 1, &isAccepted);
    else
        chosen = QInputDialog::getItem(this, tr("Select size"), name, choices,
                                       qMax(0, choices.indexOf(QString::number(value))), false, &isAccepted)
                     .toInt();
    if (!isAccepted || chosen == value)
        return;
    combo->setItemText(index, sizeText(QString::number(chosen), name));
    combo->setItemData(index, QString::number(chosen), storedRole);
    emit changedSignal();
}

bool ThemePage::saveValues(QazSettings *settings)
{
    saveCursorTheme();
    if (m_ui->iconThemeCombo->currentIndex() >= 0)
        updateStringValue(settings, QLatin1String(iconThemeKey.name), QLatin1String(iconThemeKey.defaultText),
                          m_ui->iconThemeCombo->currentText());
    if (const int chosen = m_ui->decorThemeCombo->currentIndex(); chosen >= 0)
        updateStringValue(settings, QLatin1String(decorThemeKey.name), QString(),
                          chosen == 0 ? QString() : m_ui->decorThemeCombo->currentText());
    int index = 0;
    for (const ColorElement &element : colorElements())
        saveColors(element, m_ui->elementComboBox->itemData(index++, storedRole).toStringList(), settings);
    saveSizes(settings);
    return true;
}

void ThemePage::saveCursorTheme()
{
    const QString name = m_ui->cursorThemeCombo->currentText();
    if (name.isEmpty() || name == currentCursorTheme())
        return;
    if (setCursorTheme(name))
        showMessage(this, QMessageBox::Warning, tr("Warning"),
                    tr("New cursor theme will be applied to newly started apps"));
    else
        showMessage(this, QMessageBox::Warning, tr("Error"),
                    tr("The cursor theme '%1' can't be set.").arg(name));
}

void ThemePage::saveSizes(QazSettings *settings)
{
    const double dpi = screenDpi();
    int index = 0;
    for (const SizeElement &element : sizeElements)
        updateStringValue(settings, QLatin1String(element.key->name), defaultSize(element, dpi),
                          m_ui->sizeComboBox->itemData(index++, storedRole).toString());
}
