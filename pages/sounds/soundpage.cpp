#include "pages/sounds/soundpage.h"

#include "pages/common/dropfilter.h"
#include "pages/common/messagebox.h"
#include "pages/common/waitcursor.h"
#include "pages/sounds/soundchoice.h"
#include "pages/sounds/soundconversion.h"
#include "platform/qazfiledialog.h"
#include "platform/qazinit.h"
#include "platform/qazsettings.h"
#include "platform/qazsoundtheme.h"
#include "settings/directories.h"
#include "settings/soundassignments.h"
#include "settings/textvalues.h"
#include "settings/updatevalues.h"
#include "ui_soundform.h"

#include <QFileInfo>
#include <QProcess>
#include <QShortcut>
#include <QSignalBlocker>

namespace {

constexpr const ThemeKey &enableKey = themeKey("EnableSound");
constexpr const ThemeKey &soundThemeKey = themeKey("SoundTheme");

QString soundsDirectory()
{
    return directoryPath(DirectoryKind::Sounds);
}

} // namespace

SoundPage::SoundPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::SoundForm>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpList();
    const QGroupBox *group = m_ui->wmSoundsGroupBox;
    connect(group, &QGroupBox::toggled, this, &SoundPage::changedSignal);
    connect(group, &QGroupBox::toggled, this, &SoundPage::soundEnabled);
    connect(m_ui->soundThemeCombo, qOverload<int>(&QComboBox::activated), this, &SoundPage::themeSelected);
    connect(m_ui->clearSoundsButton, &QPushButton::clicked, this, &SoundPage::clearAll);
    connect(m_ui->defaultSoundsButton, &QPushButton::clicked, this, &SoundPage::defaultAll);
    connect(&m_player, &SoundPlayer::started, this, &SoundPage::playStarted);
    connect(&m_player, &SoundPlayer::ended, this, &SoundPage::stopItem);
}

SoundPage::~SoundPage() = default;

void SoundPage::setUpButtons()
{
    const int extent = int(qazDpiScaled(32));
    const auto setUp = [this, extent](QToolButton *button, const char *icon, QStyle::StandardPixmap fallback,
                                      void (SoundPage::*action)()) {
        button->setIcon(QIcon::fromTheme(QLatin1String(icon), style()->standardIcon(fallback)));
        button->setIconSize(QSize(extent, extent));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::released, this, action);
    };
    setUp(m_ui->selectSoundButton, "document-open", QStyle::SP_DialogOpenButton, &SoundPage::openItem);
    setUp(m_ui->removeSoundButton, "edit-delete", QStyle::SP_TrashIcon, &SoundPage::clearItem);
    setUp(m_ui->playButton, "media-playback-start", QStyle::SP_MediaPlay, &SoundPage::playItem);
    setUp(m_ui->stopButton, "media-playback-stop", QStyle::SP_MediaStop, &SoundPage::stopItem);
    connect(m_ui->mixerButton, &QPushButton::clicked, this, &SoundPage::callMixer);
    m_ui->mixerButton->hide();
}

void SoundPage::setUpList()
{
    QTreeWidget *list = m_ui->soundListView;
    for (const SoundEvent &event : soundEvents) {
        const QString title = QCoreApplication::translate(event.key->context, event.key->title);
        new QTreeWidgetItem(list, {title, QString(), QLatin1String(event.key->name)});
    }
    list->hideColumn(KeyColumn);
    connect(list, &QTreeWidget::itemChanged, this, &SoundPage::changedSignal);
    connect(list, &QTreeWidget::itemChanged, this, &SoundPage::itemSelected);
    connect(list, &QTreeWidget::itemSelectionChanged, this, &SoundPage::itemSelected);
    connect(list, &QTreeWidget::itemDoubleClicked, this, &SoundPage::openItem);
    takeDrops(list, [this](const QMimeData *data, std::optional<QPoint> at) { return taking(data, at); });
    const auto onKey = [this, list](Qt::Key key, void (SoundPage::*action)()) {
        auto *shortcut = new QShortcut(QKeySequence(key), list);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_Delete, &SoundPage::clearItem);
    // The dialog would take Return for OK.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        onKey(key, &SoundPage::openItem);
}

bool SoundPage::loadValues(QazSettings *settings)
{
    const WaitCursor waitCursor;
    // A repeated load is no edit.
    const QSignalBlocker listBlocker(m_ui->soundListView);
    const QSignalBlocker groupBlocker(m_ui->wmSoundsGroupBox);
    fillThemes(settings);
    m_ui->wmSoundsGroupBox->setChecked(countsAsTrue(storedText(settings, enableKey)));
    for (QTreeWidgetItem *item : rows())
        item->setText(FileColumn, settings->value(item->text(KeyColumn), QString()).toString());
    if (!loaded)
        m_ui->soundListView->resizeColumnToContents(EventColumn);
    m_ui->soundListView->setCurrentItem(rows().first());
    soundEnabled(m_ui->wmSoundsGroupBox->isChecked());
    loaded = true;
    return true;
}

void SoundPage::fillThemes(const QazSettings *settings)
{
    QComboBox *combo = m_ui->soundThemeCombo;
    // Makes the box's list, which no start needs.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->clear();
    combo->addItem(tr("No theme"));
    List<char> names;
    QazSoundTheme::getThemesNames(&names);
    for (int i = 0; i < names.count(); ++i)
        combo->addItem(QString::fromLocal8Bit(names.at(i)));
    combo->setCurrentIndex(qMax(0, combo->findText(storedText(settings, soundThemeKey))));
}

bool SoundPage::saveValues(QazSettings *settings)
{
    const bool isOn = m_ui->wmSoundsGroupBox->isChecked();
    for (const ThemeKey *key : {&enableKey, &themeKey("EnableAlsa")})
        updateBoolValue(settings, QLatin1String(key->name), QLatin1String(key->defaultText), isOn);
    for (const QTreeWidgetItem *item : rows())
        updateStringValue(settings, item->text(KeyColumn), QString(), item->text(FileColumn));
    const QString theme = m_ui->soundThemeCombo->currentText();
    updateStringValue(settings, QLatin1String(soundThemeKey.name), QString(),
                      theme == tr("No theme") ? QString() : theme);
    return true;
}

void SoundPage::soundDisabled(bool disabled)
{
    // From here on the controls say that nothing plays.
    if (m_player.state() != QProcess::NotRunning)
        stopItem();
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

/// Gives the rows their sounds of the open theme, or the built-in ones, where those exist.
void SoundPage::fillSoundFiles(bool keepUserFiles)
{
    QStringList files; // of the theme
    for (int row = 0; row < int(std::size(soundEvents)); ++row) {
        QTreeWidgetItem *item = m_ui->soundListView->topLevelItem(row);
        if (keepUserFiles && soundKind(item->text(FileColumn)) == SoundKind::File)
            continue;
        QString name = QLatin1String(soundEvents[row].builtInFile);
        QString file = soundsDirectory() + QLatin1Char('/') + name;
        if (m_theme) {
            name = QLatin1String(soundEvents[row].themeSound);
            file = themeSoundFile(m_theme.get(), name);
            if (!file.isEmpty())
                files += file;
        }
        item->setText(FileColumn, QFileInfo(file).isFile() ? name : QString());
    }
    // After a conversion the theme looks at its directories again; the rows' names mean the converted files.
    if (m_theme && offerConversion(this, *m_theme, files))
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
    m_theme.reset();
    emit changedSignal(); // the choice itself is an edit, also when no row changes with it
    if (name != tr("No theme"))
        openTheme(name);
    fillSoundFiles(true);
}

void SoundPage::clearAll()
{
    for (QTreeWidgetItem *item : rows())
        item->setText(FileColumn, QString());
}

void SoundPage::defaultAll()
{
    fillSoundFiles(false);
}

QList<QTreeWidgetItem *> SoundPage::rows() const
{
    return m_ui->soundListView->findItems(QString(), Qt::MatchContains);
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
    const QString path = QazFileDialog::getOpenFileName(
        this, tr("Open File"), startOfChoice(item->text(FileColumn), m_theme != nullptr, soundsDirectory()),
        tr("Sounds (*.wav *.au)"));
    if (!path.isEmpty())
        assignFile(item, path);
}

void SoundPage::assignFile(QTreeWidgetItem *item, const QString &path)
{
    item->setText(FileColumn, assignmentForFile(path, soundsDirectory()));
}

std::function<void()> SoundPage::taking(const QMimeData *data, std::optional<QPoint> position)
{
    const QTreeWidget *list = m_ui->soundListView;
    QTreeWidgetItem *item = position ? list->itemAt(list->viewport()->mapFrom(list, *position))
                                     : selectedItem();
    const QString file = droppedFile(data, {QStringLiteral("wav"), QStringLiteral("au")});
    if (file.isEmpty() || (position && !item))
        return {};
    if (!item)
        return [] {};
    return [this, item, file] {
        m_ui->soundListView->setCurrentItem(item);
        assignFile(item, file);
    };
}

void SoundPage::clearItem()
{
    QTreeWidgetItem *item = selectedItem();
    if (!item)
        return;
    passFocus(m_ui->removeSoundButton, m_ui->soundListView);
    item->setText(FileColumn, QString());
}

void SoundPage::playItem()
{
    const QTreeWidgetItem *item = selectedItem();
    if (!item)
        return;
    const PlayableSound sound = playableSound(item->text(FileColumn), m_theme.get(), soundsDirectory());
    passFocus(m_ui->playButton, m_ui->soundListView);
    m_ui->playButton->setEnabled(false);
    const auto fail = [this](const QString &title, const QString &text) {
        showMessage(this, QMessageBox::Critical, title, text);
    };
    if (!sound.isPlayable) {
        fail(tr("Warning"), tr("File '%1' is not wav.\nSelect other theme or conver to wav,\n"
                               "for example ogg/oga to wav by oggdev utility.")
                                .arg(sound.path));
    } else if (!QFileInfo::exists(m_player.program())) {
        fail(tr("Error"), tr("Program %1 not found").arg(m_player.program()));
    } else if (!QFileInfo::exists(sound.path)) {
        fail(tr("Error"), tr("Sound '%1' doesn't exist").arg(sound.path));
    } else {
        m_startCursor = std::make_unique<WaitCursor>();
        setPlaying(true); // before the start, which may fail at once and give the controls back
        m_player.play(sound.path);
    }
}

void SoundPage::playStarted()
{
    m_startCursor.reset();
}

void SoundPage::stopItem()
{
    m_startCursor.reset();
    if (!selectedItem())
        return;
    m_player.stop();
    setPlaying(false);
}

void SoundPage::setPlaying(bool playing)
{
    QWidget *next = playing ? m_ui->stopButton : m_ui->playButton;
    next->setEnabled(true);
    passFocus(playing ? static_cast<QWidget *>(m_ui->soundListView) : m_ui->stopButton, next);
    m_ui->playButton->setEnabled(!playing);
    m_ui->stopButton->setEnabled(playing);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->selectSoundButton, m_ui->removeSoundButton,
                                                             m_ui->soundThemeCombo, m_ui->clearSoundsButton,
                                                             m_ui->defaultSoundsButton, m_ui->soundListView})
        control->setDisabled(playing);
}

void SoundPage::callMixer()
{
    if (!QProcess::startDetached(QStringLiteral("qasmixer"), {}))
        showMessage(this, QMessageBox::Critical, tr("Error"), tr("Can't start 'qasmixer'"));
}

void SoundPage::passFocus(const QWidget *from, QWidget *to)
{
    if (from->hasFocus())
        to->setFocus();
}
