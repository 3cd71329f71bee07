#include "pages/sounds/soundpage.h"

#include "pages/common/messagebox.h"
#include "pages/common/waitcursor.h"
#include "pages/sounds/soundchoice.h"
#include "pages/sounds/soundoutput.h"
#include "pages/sounds/soundplayer.h"
#include "pages/sounds/wavconverter.h"
#include "platform/qazfiledialog.h"
#include "platform/qazinit.h"
#include "platform/qazsettings.h"
#include "platform/qazsoundtheme.h"
#include "settings/directories.h"
#include "settings/soundassignments.h"
#include "settings/textvalues.h"
#include "settings/updatevalues.h"
#include "ui_soundform.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalBlocker>

namespace {

const QLatin1String falseText("false");

} // namespace

SoundPage::SoundPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::SoundForm>())
    , m_player(std::make_unique<SoundPlayer>(this))
{
    m_ui->setupUi(this);
    createRows();
    setUpButtons();
    connect(m_player.get(), &SoundPlayer::started, this, &SoundPage::playStarted);
    connect(m_player.get(), &SoundPlayer::ended, this, &SoundPage::stopItem);
}

SoundPage::~SoundPage() = default;

void SoundPage::createRows()
{
    for (const SoundEvent &event : soundEvents) {
        const QString title = QCoreApplication::translate("SoundForm", event.title);
        new QTreeWidgetItem(m_ui->soundListView, {title, QString(), QLatin1String(event.key)});
    }
    m_ui->soundListView->hideColumn(KeyColumn);
    m_ui->soundListView->resizeColumnToContents(EventColumn);
}

void SoundPage::setUpButtons()
{
    struct IconButton {
        QToolButton *button;
        const char *iconName;
        QStyle::StandardPixmap fallback; // an icon theme may lack the icon
        void (SoundPage::*action)();
    };
    const IconButton iconButtons[] = {
        {m_ui->selectSoundButton, "document-open", QStyle::SP_DialogOpenButton, &SoundPage::openItem},
        {m_ui->removeSoundButton, "edit-delete", QStyle::SP_TrashIcon, &SoundPage::clearItem},
        {m_ui->playButton, "media-playback-start", QStyle::SP_MediaPlay, &SoundPage::playItem},
        {m_ui->stopButton, "media-playback-stop", QStyle::SP_MediaStop, &SoundPage::stopItem}};
    const int extent = int(qazDpiScaled(32));
    for (const IconButton &entry : iconButtons) {
        entry.button->setIcon(
            QIcon::fromTheme(QLatin1String(entry.iconName), style()->standardIcon(entry.fallback)));
        entry.button->setIconSize(QSize(extent, extent));
        connect(entry.button, &QToolButton::released, this, entry.action);
    }
    connect(m_ui->mixerButton, &QPushButton::clicked, this, &SoundPage::callMixer);
    m_ui->mixerButton->hide();
}

bool SoundPage::loadValues(QazSettings *settings)
{
    const WaitCursor waitCursor;
    {
        // A repeated load is no edit.
        const QSignalBlocker listBlocker(m_ui->soundListView);
        const QSignalBlocker groupBlocker(m_ui->wmSoundsGroupBox);
        fillThemes(settings);
        m_ui->wmSoundsGroupBox->setChecked(
            countsAsTrue(settings->value(QStringLiteral("EnableSound"), falseText).toString()));
        for (int row = 0; row < m_ui->soundListView->topLevelItemCount(); ++row) {
            QTreeWidgetItem *item = m_ui->soundListView->topLevelItem(row);
            item->setText(FileColumn, settings->value(item->text(KeyColumn), QString()).toString());
        }
    }
    connectChanges();
    soundEnabled(m_ui->wmSoundsGroupBox->isChecked());
    loaded = true;
    return true;
}

void SoundPage::fillThemes(const QazSettings *settings)
{
    m_ui->soundThemeCombo->clear();
    m_ui->soundThemeCombo->addItem(tr("No theme"));
    List<char> names;
    if (!QazSoundTheme::getThemesNames(&names))
        return;
    const QString stored = settings->value(QStringLiteral("SoundTheme"), QString()).toString();
    QStringList entries;
    for (int i = 0; i < names.count(); ++i)
        entries.append(QString::fromLocal8Bit(names.at(i)));
    m_ui->soundThemeCombo->addItems(entries);
    m_ui->soundThemeCombo->setCurrentIndex(entries.indexOf(stored) + 1);
}

void SoundPage::connectChanges()
{
    // Loading may run again, so the connections are unique.
    const QTreeWidget *list = m_ui->soundListView;
    connect(m_ui->soundThemeCombo, qOverload<int>(&QComboBox::activated), this, &SoundPage::themeSelected,
            Qt::UniqueConnection);
    connect(m_ui->wmSoundsGroupBox, &QGroupBox::toggled, this, &SoundPage::changedSignal,
            Qt::UniqueConnection);
    connect(m_ui->wmSoundsGroupBox, &QGroupBox::toggled, this, &SoundPage::soundEnabled,
            Qt::UniqueConnection);
    connect(list, &QTreeWidget::itemChanged, this, &SoundPage::changedSignal, Qt::UniqueConnection);
    if (QTreeWidgetItem *top = list->itemAt(0, 0))
        m_ui->soundListView->setCurrentItem(top);
    connect(list, &QTreeWidget::itemSelectionChanged, this, &SoundPage::itemSelected, Qt::UniqueConnection);
    connect(list, &QTreeWidget::itemChanged, this, &SoundPage::itemSelected, Qt::UniqueConnection);
    connect(list, &QTreeWidget::itemDoubleClicked, this, &SoundPage::openItem, Qt::UniqueConnection);
    connect(m_ui->clearSoundsButton, &QPushButton::clicked, this, &SoundPage::clearAll, Qt::UniqueConnection);
    connect(m_ui->defaultSoundsButton, &QPushButton::clicked, this, &SoundPage::defaultAll,
            Qt::UniqueConnection);
}

bool SoundPage::saveValues(QazSettings *settings)
{
    const bool isOn = m_ui->wmSoundsGroupBox->isChecked();
    updateBoolValue(settings, QStringLiteral("EnableSound"), falseText, isOn);
    updateBoolValue(settings, QStringLiteral("EnableAlsa"), falseText, isOn);
    for (int row = 0; row < m_ui->soundListView->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_ui->soundListView->topLevelItem(row);
        updateStringValue(settings, item->text(KeyColumn), QString(), item->text(FileColumn));
    }
    const QString theme = m_ui->soundThemeCombo->currentText();
    updateStringValue(settings, QStringLiteral("SoundTheme"), QString(),
                      theme == tr("No theme") ? QString() : theme);
    return true;
}

void SoundPage::soundDisabled(bool disabled)
{
    // From here on the controls say that nothing plays.
    if (m_player->isPlaying()) {
        m_player->stop();
        m_startCursor.reset();
        setPlaying(false);
    }
    const QTreeWidgetItem *item = selectedItem();
    const bool hasSound = item && !item->text(FileColumn).isEmpty();
    m_ui->clearSoundsButton->setDisabled(disabled);
    m_ui->defaultSoundsButton->setDisabled(disabled);
    m_ui->soundListView->setDisabled(disabled);
    m_ui->selectSoundButton->setEnabled(!disabled && item);
    m_ui->removeSoundButton->setEnabled(!disabled && hasSound);
    m_ui->playButton->setEnabled(!disabled && hasSound);
    m_ui->stopButton->setEnabled(false);
}

void SoundPage::soundEnabled(bool enabled)
{
    soundDisabled(!enabled);
}

void SoundPage::itemSelected()
{
    soundEnabled(m_ui->wmSoundsGroupBox->isChecked());
}

void SoundPage::fillSoundFiles(bool fromTheme, bool clear, bool keepUserFiles)
{
    const QString directory = soundsDirectory();
    QazSoundTheme *theme = fromTheme ? m_theme.get() : nullptr;
    SoundFormats formats;
    for (int row = 0; row < m_ui->soundListView->topLevelItemCount(); ++row) {
        QTreeWidgetItem *item = m_ui->soundListView->topLevelItem(row);
        if (clear) {
            item->setText(FileColumn, QString());
            continue;
        }
        if (keepUserFiles && soundKind(item->text(FileColumn)) == SoundKind::File)
            continue;
        const QString name = defaultSound(item->text(KeyColumn), fromTheme);
        item->setText(FileColumn, usableSound(name, theme, directory, &formats));
    }
    if (m_theme)
        checkWavFormat(formats);
}

void SoundPage::checkWavFormat(const SoundFormats &formats)
{
    const QString name = QString::fromLocal8Bit(m_theme->getName());
    if (formats.ogg) {
        const QString question = tr("Not all files in theme '%1' are in wav format\n"
                                    "Would you like to convert them to wav now?");
        if (showMessage(this, QMessageBox::Question, tr("Attention"), question.arg(name),
                        QMessageBox::Yes | QMessageBox::No)
            == QMessageBox::Yes)
            convertTheme();
    } else if (formats.nonWav) {
        showMessage(
            this, QMessageBox::Information, tr("Attention"),
            tr("Not all files in theme '%1' are in wav format\nYou should convert them to wav.").arg(name));
    }
}

void SoundPage::convertTheme()
{
    WavConverter().convert(QFile::decodeName(m_theme->getPath()));
    // The theme looks at its directories again; the rows' names now mean the converted files.
    openTheme(QString::fromLocal8Bit(m_theme->getThemeName()));
}

void SoundPage::openTheme(const QString &name)
{
    m_theme = std::make_unique<QazSoundTheme>(name.toLocal8Bit().constData(), nullptr);
    if (!m_theme->load())
        showMessage(this, QMessageBox::Warning, tr("Warning"), tr("Can't load sound theme '%1'").arg(name));
}

void SoundPage::themeSelected(int index)
{
    const QString name = m_ui->soundThemeCombo->itemText(index);
    const bool fromTheme = name != tr("No theme");
    m_theme.reset();
    emit changedSignal(); // the choice itself is an edit, also when no row changes with it
    if (fromTheme)
        openTheme(name);
    fillSoundFiles(fromTheme, false, true);
}

void SoundPage::clearAll()
{
    fillSoundFiles(false, true, false);
}

void SoundPage::defaultAll()
{
    fillSoundFiles(m_theme != nullptr, false, false);
}

QTreeWidgetItem *SoundPage::selectedItem() const
{
    return m_ui->soundListView->selectedItems().value(0);
}

void SoundPage::openItem()
{
    QTreeWidgetItem *item = selectedItem();
    if (!item)
        return;
    const QString directory = soundsDirectory();
    const QString start = startDirectory(item->text(FileColumn), m_theme != nullptr, directory);
    const QString path = QazFileDialog::getOpenFileName(
        this, tr("Open File"), QFileInfo(start).isDir() ? start : QString(), tr("Sounds (*.wav *.au)"));
    if (!path.isEmpty())
        item->setText(FileColumn, assignmentForFile(path, directory));
}

void SoundPage::clearItem()
{
    QTreeWidgetItem *item = selectedItem();
    if (!item)
        return;
    passFocus(m_ui->removeSoundButton, m_ui->soundListView);
    item->setText(FileColumn, QString());
}

QString SoundPage::soundsDirectory()
{
    return directoryPath(DirectoryKind::Sounds);
}

void SoundPage::passFocus(const QWidget *from, QWidget *to)
{
    if (from->hasFocus())
        to->setFocus();
}
