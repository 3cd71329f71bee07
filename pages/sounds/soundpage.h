#pragma once

#include "pages/sounds/soundplayer.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QMimeData;
class QTreeWidgetItem;
class QazSettings;
class QazSoundTheme;
class WaitCursor;

namespace Ui {
class SoundForm;
}

/// Assigns sounds to the window manager's events, by hand or from a sound theme, and plays them.
class SoundPage : public QWidget
{
    Q_OBJECT
public:
    explicit SoundPage(QWidget *parent = nullptr);
    ~SoundPage() override;

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    /// Fills the form from \a settings, which stays the caller's and is not kept. Always true.
    bool loadValues(QazSettings *settings);
    /// Stores and announces what changed. Always true.
    bool saveValues(QazSettings *settings);
    /// Enables the controls that suit the selected row; a sound that plays is stopped.
    void soundDisabled(bool disabled);
    void soundEnabled(bool enabled);
    /// Opens the sound theme at \a index of the combo box and takes its sounds, but keeps the user's own files.
    void themeSelected(int index);
    void itemSelected();
    /// Asks for the selected row's file.
    void openItem();
    /// Removes the selected row's assignment.
    void clearItem();
    /// Plays the selected row's sound.
    void playItem();
    /// Gives the controls back when the player was stopped or has ended.
    void stopItem();
    void playStarted();
    void callMixer();
    void clearAll();
    /// Takes the open theme's sounds, or the built-in ones, for all rows.
    void defaultAll();

private:
    enum Column { EventColumn, FileColumn, KeyColumn };

    void setUpButtons();
    void setUpList();
    void fillThemes(const QazSettings *settings);
    void fillSoundFiles(bool keepUserFiles);
    void openTheme(const QString &name);
    void setPlaying(bool playing);
    void assignFile(QTreeWidgetItem *item, const QString &path);
    /// Assigns a sound file that is dropped on a row, or pasted for the selected one.
    std::function<void()> taking(const QMimeData *data, std::optional<QPoint> position);
    QList<QTreeWidgetItem *> rows() const;
    QTreeWidgetItem *selectedItem() const;
    /// Before \a from is disabled: Qt would pass its focus on to the dialog's buttons, which act on Return.
    static void passFocus(const QWidget *from, QWidget *to);

    std::unique_ptr<Ui::SoundForm> m_ui;
    std::unique_ptr<QazSoundTheme> m_theme; // none before the user chooses one
    SoundPlayer m_player;
    std::unique_ptr<WaitCursor> m_startCursor; // until the player has started
};
