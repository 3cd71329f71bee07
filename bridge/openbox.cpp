#include "bridge/openbox.h"

#include "base/atomicfile.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "bridge/openboxrc.h"
#include "bridge/programs.h"
#include "bridge/xconnection.h"
#include "settings/backup.h"
#include "settings/colortexts.h"
#include "settings/themekeys.h"

#include <QColor>
#include <QFile>

namespace {

const QString themeName = QStringLiteral("qaz");
constexpr char systemConfiguration[] = "/etc/xdg/openbox/rc.xml";

/// Where an element's colour goes; the names end with ".color". Those of a gradient are areas, with a second colour.
struct Part {
    const char *key;
    const char *names;
};

constexpr Part parts[] = {
    {"TitleStringColor", "window.inactive.label.text window.inactive.button.*.image"},
    {"TitleStringActiveColor", "window.active.label.text window.active.button.*.image menu.title.text"},
    {"FrameColor", "window.inactive.border window.inactive.client window.inactive.title.separator "
                   "window.inactive.handle.bg window.inactive.grip.bg"},
    {"FrameActiveColor", "window.active.border window.active.client window.active.title.separator "
                         "window.active.handle.bg window.active.grip.bg menu.border"},
    {"MenuActiveColor", "menu.items.active.bg"},
    {"MenuStringColor", "menu.items.text"},
    {"MenuStringActiveColor", "menu.items.active.text"},
    {"TitlebarColor", "window.inactive.title.bg"},
    {"TitlebarActiveColor", "window.active.title.bg menu.title.bg"},
    {"MenuColor", "menu.items.bg"},
};

constexpr char fixedLines[] = "border.width: 1\n"
                              "window.*.label.bg: Parentrelative\n"
                              "window.*.button.*.bg: Parentrelative\n"
                              "window.*.handle.bg: Flat Solid\n"
                              "window.*.grip.bg: Flat Solid\n"
                              "menu.items.active.bg: Flat Solid\n"
                              "window.label.text.justify: left\n";

QByteArray colorName(const Values &values, const QByteArray &key)
{
    const char *defaultText = themeKey(key.constData()).defaultText;
    const QString fallback = QLatin1String(defaultText);
    const QColor color(currentColorText(values.text(key.constData(), defaultText), fallback));
    return (color.isValid() ? color : QColor(fallback)).name().toLatin1();
}

} // namespace

QByteArray openboxTheme(const Values &values)
{
    QByteArray text = fixedLines;
    for (const Part &part : parts) {
        const QByteArray from = colorName(values, part.key);
        const QByteArray endKey = QByteArray(part.key) + '2';
        const bool isArea = findThemeKey(QString::fromLatin1(endKey));
        const QByteArray to = isArea ? colorName(values, endKey) : from;
        for (const QByteArray &name : QByteArray(part.names).split(' ')) {
            text += name + ".color: " + from + '\n';
            if (isArea)
                text += name + (from == to ? ": Flat Solid\n" : ": Flat Gradient Horizontal\n") + name
                        + ".colorTo: " + to + '\n';
        }
    }
    return text;
}

Openbox::Openbox(const Session &session)
    : m_session(session)
{}

void Openbox::apply()
{
    if (m_session.x.windowManager() != "Openbox")
        return;
    const QString path = xdgDirectory("XDG_DATA_HOME", "/.local/share") + QLatin1String("/themes/")
                         + themeName + QLatin1String("/openbox-3/themerc");
    if (!m_session.write(path, openboxTheme(m_session.values)))
        return;
    if (m_session.options.openbox && !m_session.options.dryRun)
        editConfiguration();
    m_session.programs.run({{QStringLiteral("openbox"), QStringLiteral("--reconfigure")}});
}

void Openbox::editConfiguration() const
{
    // It may have been told of another file, and says of which one.
    QString path = QFile::decodeName(m_session.x.text(m_session.x.rootWindow(), "_OB_CONFIG_FILE"));
    if (path.isEmpty() || path == QLatin1String(systemConfiguration))
        path = xdgDirectory("XDG_CONFIG_HOME", "/.config") + QLatin1String("/openbox/rc.xml");
    QString error;
    EditFileOptions options;
    options.beforeReplace = [](const QString &file) { backUp(file); };
    const auto edit = [this, &error](const QByteArray &content) {
        const QByteArray base = content.isEmpty()
                                    ? readRegularFile(QLatin1String(systemConfiguration)).content
                                    : content;
        return withOpenboxTheme(base, themeName, m_session.values.text("TitleFont"),
                                m_session.values.text("CascadeMenuFont"), &error);
    };
    if (!editFile(path, edit, &error, options))
        tell(QStringLiteral("Can't change %1: %2").arg(path, error));
}
