#pragma once

#include "fonts/fontrendering.h"

#include <QDialog>

#include <memory>

namespace Ui {
class FontAASettingsForm;
}

/// The modal dialog "Configure Anti-Alias Settings": sizes without anti-aliasing, sub-pixel order, hint style.
/// It reads the user's fontconfig file; nothing is written before save().
class FontAASettings : public QDialog
{
    Q_OBJECT
public:
    explicit FontAASettings(QWidget *parent);
    ~FontAASettings() override;

    /// Shows what the user's fontconfig file holds. Returns whether that file turns anti-aliasing on.
    bool load();
    /// Writes the shown values and \a useAntiAliasing to the fontconfig file and to the program's own
    /// settings. Returns whether anything changed. When the file could not be written, \a error says so and why, and
    /// nothing is.
    bool save(bool useAntiAliasing, QString *error);
    /// Shows the defaults; nothing is written.
    void defaults();

public slots:
    /// Runs the dialog. Returns 1 when it was accepted and has ever been edited, else 0; a rejected dialog shows
    /// the file's values again.
    int exec() override;
    /// Takes note of an edit: from now on the dialog can be accepted.
    void changed();

private:
    void rangeChanged();
    void showRange(const ExcludeRange &range);
    void enableWidgets();

    std::unique_ptr<Ui::FontAASettingsForm> m_ui;
    bool m_changesMade = false;
    /// In pixels. The spin boxes show fewer digits and smaller sizes than a file may hold: what was not edited
    /// stays.
    ExcludeRange m_range;
};
