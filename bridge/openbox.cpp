#include "bridge/openbox.h"

#include "base/atomicfile.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "bridge/openboxrc.h"
#include "bridge/openboxtheme.h"
#include "bridge/options.h"
#include "bridge/programs.h"
#include "bridge/values.h"
#include "bridge/xconnection.h"
#include "settings/backup.h"

#include <QFile>

namespace {

const QString themeName = QStringLiteral("qaz");
constexpr char systemConfiguration[] = "/etc/xdg/openbox/rc.xml";

} // namespace

Openbox::Openbox(const Session &session)
    : m_session(session)
{}

void Openbox::apply()
{
    if (m_session.x.windowManager() != "Openbox")
        return;
    if (!m_session.options.dryRun) {
        if (!writeTheme())
            return;
        if (m_session.options.openbox)
            editConfiguration();
    }
    m_session.programs.run(QStringLiteral("openbox"),
                           {{QStringLiteral("openbox"), QStringLiteral("--reconfigure")}});
}

bool Openbox::writeTheme() const
{
    const QString path = xdgDirectory("XDG_DATA_HOME", "/.local/share") + QLatin1String("/themes/")
                         + themeName + QLatin1String("/openbox-3/themerc");
    const QByteArray theme = openboxTheme(
        [this](const char *key, const char *defaultText) { return m_session.values.text(key, defaultText); });
    QString error;
    const bool isWritten = replaceFile(path, theme, &error);
    if (!isWritten)
        tell(QStringLiteral("Can't write %1: %2").arg(path, error));
    return isWritten;
}

void Openbox::editConfiguration() const
{
    // It may have been told of another file, and says of which one.
    QString path = QFile::decodeName(m_session.x.text(m_session.x.rootWindow(), "_OB_CONFIG_FILE"));
    const QString own = xdgDirectory("XDG_CONFIG_HOME", "/.config") + QLatin1String("/openbox/rc.xml");
    if (path.isEmpty() || path == QLatin1String(systemConfiguration))
        path = own;
    QString error;
    QString reason;
    EditFileOptions options;
    options.beforeReplace = [](const QString &file) { backUp(file); };
    const auto edit = [this, &reason](const QByteArray &content) {
        const QByteArray base = content.isEmpty()
                                    ? readRegularFile(QLatin1String(systemConfiguration)).content
                                    : content;
        return withOpenboxTheme(base, themeName, m_session.values.text("TitleFont"),
                                m_session.values.text("CascadeMenuFont"), &reason);
    };
    if (!editFile(path, edit, &error, options))
        tell(QStringLiteral("Can't change %1: %2").arg(path, reason.isEmpty() ? error : reason));
}
