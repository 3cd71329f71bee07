#pragma once

#include <QWidget>

#include <memory>

class QazSettings;
struct CompositeState;
struct EffectSetting;

namespace Ui {
class EffectForm;
}

/// Edits how the window manager places, moves and animates windows, and the compositing manager.
class EffectPage : public QWidget
{
    Q_OBJECT
public:
    explicit EffectPage(QWidget *parent = nullptr);
    ~EffectPage() override;

    /// Whether loadValues() has run; only then the page may be saved.
    bool loaded = false;

signals:
    /// An edit by the user; loading emits nothing.
    void changedSignal();

public slots:
    /// Fills the form from \a settings, which stays the caller's and is not kept. Always true.
    bool loadValues(QazSettings *settings);
    /// Writes the values that differ from those in \a settings and announces each. Always true.
    bool saveValues(QazSettings *settings);
    /// A window-map style was chosen: every animated style starts at the same speed, "None" has none.
    void mapAnimationSlot(int index);
    /// Autopaging is off exactly when its belt has no size.
    void pagingBeltSlot(bool on);

private:
    void loadSetting(const QazSettings *settings, const EffectSetting &setting);
    void saveSetting(QazSettings *settings, const EffectSetting &setting) const;
    CompositeState compositeState() const;
    void connectEdits();

    std::unique_ptr<Ui::EffectForm> m_ui;
    /// The compton file once it is known, for the life of the page.
    QString comptonConfigPath;
};
