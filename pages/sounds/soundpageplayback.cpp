#include "pages/sounds/soundpage.h"

#include "pages/common/messagebox.h"
#include "pages/common/waitcursor.h"
#include "pages/sounds/soundoutput.h"
#include "pages/sounds/soundplayer.h"
#include "platform/qazsoundtheme.h"
#include "settings/soundassignments.h"
#include "ui_soundform.h"

#include <QFileInfo>
#include <QProcess>

void SoundPage::playItem()
{
    const QTreeWidgetItem *item = selectedItem();
    if (!item)
        return;
    const PlayableSound sound = playableSound(item->text(FileColumn), m_theme.get(), soundsDirectory());
    passFocus(m_ui->playButton, m_ui->soundListView);
    m_ui->playButton->setEnabled(false);
    if (!sound.isPlayable) {
        const QString text = tr("File '%1' is not wav.\nSelect other theme or conver to wav,\n"
                                "for example ogg/oga to wav by oggdev utility.");
        showMessage(this, QMessageBox::Critical, tr("Warning"), text.arg(sound.path));
    } else if (useQSound) {
        m_sound = createQSound(sound.path);
        m_ui->stopButton->setEnabled(true);
        if (m_sound)
            m_sound->play();
    } else if (!m_player->isInstalled()) {
        showMessage(this, QMessageBox::Critical, tr("Error"),
                    tr("Program %1 not found").arg(m_player->program()));
    } else if (!QFileInfo::exists(sound.path)) {
        showMessage(this, QMessageBox::Critical, tr("Error"), tr("Sound '%1' doesn't exist").arg(sound.path));
    } else {
        startPlaying(sound.path);
    }
}

void SoundPage::startPlaying(const QString &path)
{
    m_startCursor = std::make_unique<WaitCursor>();
    // Before the start, which may fail at once and give the controls back.
    setPlaying(true);
    m_player->play(path);
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
    if (useQSound && m_sound) {
        m_sound->stop();
        m_sound.reset();
    }
    m_player->stop();
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
