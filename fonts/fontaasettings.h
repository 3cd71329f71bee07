#pragma once

#include "fonts/fontrendering.h"

#include <QDialog>

#include <memory>
#include <optional>

class KXftConfig;

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
    bool showsPixels() const;
    ExcludeRange defaultRange() const;
    void showExcludeRange(const ExcludeRange &range);
    void rangeChanged();
    /// The range to store; nothing while the file's own range is shown and was not edited.
    std::optional<ExcludeRange> editedRange(const KXftConfig &config) const;
    SubPixelOrder chosenOrder() const;
    HintStyle chosenHintStyle() const;
    void enableWidgets();

    std::unique_ptr<Ui::FontAASettingsForm> m_ui;
    bool m_changesMade = false;
    bool m_rangeEdited = false; // since it was last read or written
};
