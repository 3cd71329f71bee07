#include "pages/effects/compositesettings.h"

#include "base/diagnostics.h"
#include "pages/effects/comptonconfig.h"
#include "platform/findfileinpath.h"
#include "platform/findinps.h"
#include "platform/qazsettings.h"
#include "settings/backup.h"
#include "settings/directories.h"
#include "settings/textvalues.h"
#include "settings/updatevalues.h"
#include "settings/wmcommands.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <climits>

namespace {

const QLatin1String useCompositeKey("UseComposite");
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

/// The desktop's own manager reads this INI file; both of its values are negations of what the page shows.
class KompmgrFile
{
public:
    KompmgrFile()
        : m_path(directoryPath(DirectoryKind::PersonalSettings) + QLatin1String("/kompmgrrc"))
        , m_settings(m_path, QSettings::IniFormat)
    {
        m_settings.beginGroup(QStringLiteral("kompmgr"));
    }

    bool transparency() const
    {
        return !countsAsTrue(
            m_settings.value(QStringLiteral("IgnoreTransparency"), QStringLiteral("true")).toString());
    }
    bool shadow() const
    {
        return !m_settings.value(QStringLiteral("Compmode"), simpleMode).toString().contains(simpleMode);
    }

    /// Writes what differs from \a state; returns whether anything did.
    bool update(const CompositeState &state)
    {
        const bool newTransparency = state.transparency != transparency();
        const bool newShadow = state.shadow != shadow();
        if (!newTransparency && !newShadow)
            return false;
        // Writing drops comments, and boxes that were never loaded overwrite what the user had.
        backUp(m_path);
        if (newTransparency)
            m_settings.setValue(QStringLiteral("IgnoreTransparency"), boolText(!state.transparency));
        if (newShadow)
            m_settings.setValue(QStringLiteral("Compmode"), QString(state.shadow ? shadowMode : simpleMode));
        m_settings.sync();
        if (m_settings.status() == QSettings::AccessError)
            printDiagnostic(QStringLiteral("Can't write %1").arg(m_path));
        return true;
    }

private:
    QString m_path;
    QSettings m_settings;
};

void loadCompton(const QString &path, CompositeState *state)
{
    const std::optional<ComptonConfig> config = ComptonConfig::read(path);
    if (!config) {
        printDiagnostic(QStringLiteral("Can't read %1").arg(path));
        return;
    }
    state->shadow = config->boolean(comptonShadow).value_or(false);
    state->transparency = config->boolean(comptonTransparency).value_or(false);
}

/// Returns whether the file had other values than \a state, a missing one included.
bool updateCompton(const QString &path, const CompositeState &state)
{
    if (path.isEmpty())
        return false;
    std::optional<ComptonConfig> config = ComptonConfig::read(path);
    if (!config) {
        printDiagnostic(QStringLiteral("Can't read %1").arg(path));
        return false;
    }
    bool changed = config->updateBoolean(comptonTransparency, state.transparency);
    changed = config->updateBoolean(comptonShadow, state.shadow) || changed;
    if (!changed)
        return false;
    backUp(path);
    if (QString reason; !config->write(&reason))
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, reason));
    return true;
}

/// Makes an empty file at \a path, but never empties one that exists.
bool createFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return false;
    return QFile(path).open(QIODevice::WriteOnly | QIODevice::Append);
}

} // namespace

CompositeSettings::CompositeSettings(QazSettings *store, QString *comptonConfigPath)
    : m_store(store)
    , m_comptonConfigPath(comptonConfigPath)
{}

CompositeState CompositeSettings::load(const CompositeState &shown)
{
    CompositeState state = shown;
    const QString manager = managerName();
    if (!loadManagerOn(manager, &state.managerOn))
        return state;
    if (isCompton(manager)) {
        if (m_comptonConfigPath->isEmpty())
            *m_comptonConfigPath = resolveComptonConfig({QFile::decodeName(qgetenv("XDG_CONFIG_HOME")),
                                                         directoryPath(DirectoryKind::Home),
                                                         QStringLiteral("/etc/xdg/compton.conf")});
        loadCompton(*m_comptonConfigPath, &state);
    } else {
        const KompmgrFile file;
        state.transparency = file.transparency();
        state.shadow = file.shadow();
    }
    return state;
}

void CompositeSettings::save(const CompositeState &state)
{
    const bool fileChanged = isCompton(managerName()) ? updateCompton(*m_comptonConfigPath, state)
                                                      : KompmgrFile().update(state);
    const QString storedUse = m_store->value(useCompositeKey, boolText(false)).toString();
    updateBoolValue(m_store, useCompositeKey, boolText(false), state.managerOn);
    if (state.managerOn && storedUse == boolText(true) && fileChanged) {
        // Only a restart makes the running manager read its file again.
        for (const bool on : {false, true})
            sendToWindowManager(updateCommand(useCompositeKey, boolText(on)));
    }
}

QString CompositeSettings::managerName() const
{
    return m_store->value(QStringLiteral("CompositeManager"), QStringLiteral("/usr/bin/qaz-kompmgr"))
        .toString();
}

/// Returns false when the manager isn't found, so that its file must be left alone.
bool CompositeSettings::loadManagerOn(const QString &manager, bool *managerOn)
{
    const QByteArray path = findManager(manager);
    if (path.isEmpty()) {
        printDiagnosticAs("qaz-admin-wm",
                          QStringLiteral("can't find CompositeManager='%1' in PATH").arg(manager));
        *managerOn = false;
        m_store->setValue(useCompositeKey, boolText(false));
        return false;
    }
    const bool wanted = countsAsTrue(m_store->value(useCompositeKey, boolText(true)).toString());
    *managerOn = findInPS(path.mid(path.lastIndexOf('/') + 1).constData());
    if (*managerOn != wanted)
        m_store->setValue(useCompositeKey, boolText(*managerOn));
    return true;
}

QString resolveComptonConfig(const ComptonPlaces &places)
{
    const QString homeConfig = places.home + QLatin1String("/.config");
    const QString file = QStringLiteral("/compton.conf");
    QString own = (places.configHome.isEmpty() ? homeConfig : places.configHome) + file;
    if (QFileInfo::exists(own))
        return own;
    QString old = places.home + QLatin1String("/.compton.conf");
    if (QFileInfo::exists(old))
        return old;
    if (QFileInfo::exists(places.systemFile))
        QFile::copy(places.systemFile, homeConfig + file);
    else if (!createFile(homeConfig + file))
        printDiagnostic(QStringLiteral("Can't create %1").arg(homeConfig + file));
    return homeConfig + file;
}
