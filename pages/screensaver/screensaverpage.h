#pragma once

#include <QWidget>

#include <memory>

class QazSettings;

namespace Ui {
class ScreensaverForm;
}

/// Edits when the screensaver starts, when the display is switched off, and how the screen locker behaves.
class ScreensaverPage : public QWidget
{
    Q_OBJECT
public:
    explicit ScreensaverPage(QWidget *parent = nullptr);
    ~ScreensaverPage() override; // in the .cpp, where Ui::ScreensaverForm is complete

    /// Set by the first loadValues(): the page is shown with values, and is to be saved.
    bool loaded = false;

signals:
    /// The user edited a value. A spin box emits it twice for each change: for the number and for the text.
    void changedSignal();

public slots:
    /// Fills the form from \a settings, which stays the caller's. \a restore changes nothing. Always true.
    bool loadValues(QazSettings *settings, bool restore = false);
    /// Stores and announces what differs from \a settings.
    void saveValues(QazSettings *settings);

private:
    std::unique_ptr<Ui::ScreensaverForm> m_ui;
};
