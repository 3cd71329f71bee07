#pragma once

#include <QString>

class QazSettings;

/// What the page shows of the compositing manager.
struct CompositeState {
    bool managerOn = false;
    bool transparency = false;
    bool shadow = false;
};

/// The compositing values of one load or save: the manager named by the theme file, whether it runs, and the
/// file that holds its own settings. Failures are told on standard error and never stop anything.
class CompositeSettings
{
public:
    /// Works on \a store with \a comptonConfigPath, the compton file once it is known; both stay the caller's.
    CompositeSettings(QazSettings *store, QString *comptonConfigPath);

    /// The state to show; what can't be read stays as in \a shown. `UseComposite` of the store is brought in
    /// line with the running manager, without a command to the window manager.
    CompositeState load(const CompositeState &shown);

    /// Saves \a state to the manager's file and to `UseComposite`. A manager that runs on with a changed file is
    /// restarted through the window manager.
    void save(const CompositeState &state);

private:
    QString managerName() const;
    bool loadManagerOn(const QString &manager, bool *managerOn);

    QazSettings *m_store;
    QString *m_comptonConfigPath;
};

/// Where a compton file may stand.
struct ComptonPlaces {
    QString configHome; ///< $XDG_CONFIG_HOME; may be empty
    QString home;
    QString systemFile;
};

/// The compton file to use. The system's file is copied, or an empty file made, where the user has none. The
/// path is valid also when that fails.
QString resolveComptonConfig(const ComptonPlaces &places);
