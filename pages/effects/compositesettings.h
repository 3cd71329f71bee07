#pragma once

#include <QString>

class QazSettings;

/// What the page shows of the compositing manager: whether it runs, and the values of its own file.
struct CompositeState {
    bool managerOn = false;
    bool transparency = false;
    bool shadow = false;
};

// Failures are told on standard error and never stop anything. The page keeps the path of the compton file, which is
// empty until a load resolves it.

/// The state to show of the manager that \a settings name; what can't be read stays as in \a shown. `UseComposite` is
/// brought in line with the running manager, without a command to the window manager.
CompositeState loadComposite(QazSettings *settings, const CompositeState &shown, QString *comptonConfigPath);

/// Saves \a state to the manager's file and to `UseComposite`. A manager that runs on with a changed file is restarted
/// through the window manager.
void saveComposite(QazSettings *settings, const CompositeState &state, const QString &comptonConfigPath);

/// Where a compton file may stand.
struct ComptonPlaces {
    QString configHome; ///< $XDG_CONFIG_HOME, or what it is when it is not set
    QString home;
    QString systemFile;
};

/// The compton file to use. The system's file is copied, or an empty file made, where the user has none. The
/// path is valid also when that fails.
QString resolveComptonConfig(const ComptonPlaces &places);
