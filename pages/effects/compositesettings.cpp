#include "pages/effects/compositesettings.h"

#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "pages/effects/comptonconfig.h"
#include "platform/findfileinpath.h"
#include "platform/findinps.h"
#include "platform/qazsettings.h"
#include "settings/backup.h"
#include "settings/directories.h"
#include "settings/inifile.h"
#include "settings/textvalues.h"
#include "settings/themekeys.h"
#include "settings/updatevalues.h"
#include "settings/wmcommands.h"

#include <QFile>
#include <QFileInfo>

#include <climits>

namespace {

const QLatin1String useCompositeKey(themeKey("UseComposite").name); // two defaults, on purpose
const QLatin1String simpleMode("CompSimple");
const QLatin1String shadowMode("CompClientShadows");

bool isCompton(const QString &manager)
{
    return manager.contains(QLatin1String("compton"));
}

/// The full path of the manager; empty when it can't be found.
QByteArray findManager(const QString &manager)
{
    char path[PATH_MAX] = {};
    return FindFileInPATH(QFile::encodeName(manager).constData(), path) ? QByteArray(path) : QByteArray();
}

// The desktop's own manager reads kompmgrrc, whose values are negations of what the page shows.

QString kompmgrPath()
{
    return directoryPath(DirectoryKind::PersonalSettings) + QLatin1String("/kompmgrrc");
}

void loadKompmgr(CompositeState *state)
{
    const auto text = [path = kompmgrPath()](const char *key, const QString &defaultText) {
        return iniValue(path, QLatin1String("kompmgr/") + QLatin1String(key), defaultText).toString();
    };
    state->transparency = !countsAsTrue(text("IgnoreTransparency", boolText(true)));
    state->shadow = !text("Compmode", simpleMode).contains(simpleMode);
}

/// Writes what differs from \a state; returns whether anything did.
bool updateKompmgr(const CompositeState &state)
{
    CompositeState stored;
    loadKompmgr(&stored);
    QMap<QString, QVariant> values;
    if (stored.transparency != state.transparency)
        values.insert(QStringLiteral("IgnoreTransparency"), boolText(!state.transparency));
    if (stored.shadow != state.shadow)
        values.insert(QStringLiteral("Compmode"), QString(state.shadow ? shadowMode : simpleMode));
    if (values.isEmpty())
        return false;
    backUp(kompmgrPath()); // boxes that were never loaded overwrite what the user had
    writeIniValues(kompmgrPath(), "kompmgr", values);
    return true;
}

void loadCompton(const QString &path, CompositeState *state)
{
    const std::optional<ComptonValues> values = readComptonFile(path);
    if (!values) {
        printDiagnostic(QStringLiteral("Can't read %1").arg(path));
        return;
    }
    state->shadow = values->shadow.value_or(false);
    state->transparency = values->transparency.value_or(false);
}

/// Returns whether the file had other values than \a state, a missing one included.
bool updateCompton(const QString &path, const CompositeState &state)
{
    if (path.isEmpty())
        return false;
    const std::optional<ComptonValues> stored = readComptonFile(path);
    if (!stored) {
        printDiagnostic(QStringLiteral("Can't read %1").arg(path));
        return false;
    }
    if (stored->transparency == state.transparency && stored->shadow == state.shadow)
        return false;
    if (QString error; !updateComptonFile(path, state.transparency, state.shadow, &error))
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, error));
    return true;
}

QString managerName(const QazSettings *settings)
{
    return storedText(settings, themeKey("CompositeManager"));
}

/// Whether the manager at \a path runs, with `UseComposite` brought in line.
bool loadManagerOn(QazSettings *settings, const QByteArray &path)
{
    const bool isWanted = countsAsTrue(settings->value(useCompositeKey, boolText(true)).toString());
    const bool isRunning = findInPS(path.mid(path.lastIndexOf('/') + 1).constData());
    if (isRunning != isWanted)
        settings->setValue(useCompositeKey, boolText(isRunning));
    return isRunning;
}

} // namespace

CompositeState loadComposite(QazSettings *settings, const CompositeState &shown, QString *comptonConfigPath)
{
    CompositeState state = shown;
    const QString manager = managerName(settings);
    const QByteArray path = findManager(manager);
    if (path.isEmpty()) { // its file is left alone
        printDiagnosticAs("qaz-admin-wm",
                          QStringLiteral("can't find CompositeManager='%1' in PATH").arg(manager));
        settings->setValue(useCompositeKey, boolText(false));
        state.managerOn = false;
        return state;
    }
    state.managerOn = loadManagerOn(settings, path);
    if (!isCompton(manager)) {
        loadKompmgr(&state);
        return state;
    }
    if (comptonConfigPath->isEmpty())
        *comptonConfigPath = resolveComptonConfig({xdgDirectory("XDG_CONFIG_HOME", "/.config"),
                                                   directoryPath(DirectoryKind::Home),
                                                   QStringLiteral("/etc/xdg/compton.conf")});
    loadCompton(*comptonConfigPath, &state);
    return state;
}

void saveComposite(QazSettings *settings, const CompositeState &state, const QString &comptonConfigPath)
{
    const bool fileChanged = isCompton(managerName(settings)) ? updateCompton(comptonConfigPath, state)
                                                              : updateKompmgr(state);
    const QString storedUse = settings->value(useCompositeKey, boolText(false)).toString();
    updateBoolValue(settings, useCompositeKey, boolText(false), state.managerOn);
    if (state.managerOn && storedUse == boolText(true) && fileChanged) {
        // Only a restart makes the running manager read its file again.
        for (const bool on : {false, true})
            sendToWindowManager(updateCommand(useCompositeKey, boolText(on)));
    }
}

QString resolveComptonConfig(const ComptonPlaces &places)
{
    const QString file = QStringLiteral("/compton.conf");
    for (const QString &path : {places.configHome + file, places.home + QLatin1String("/.compton.conf")}) {
        if (QFileInfo::exists(path))
            return path;
    }
    QString path = places.home + QLatin1String("/.config") + file;
    if (QFileInfo(places.systemFile).isFile())
        QFile::copy(places.systemFile, path); // without a copy the manager's defaults are shown
    else if (!QFileInfo(path).isFile() && !QFile(path).open(QIODevice::NewOnly))
        printDiagnostic(QStringLiteral("Can't create %1").arg(path));
    return path;
}
