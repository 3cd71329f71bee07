#include "bridge/xsettings.h"

#include "bridge/programs.h"
#include "bridge/xconnection.h"
#include "platform/qazicontheme.h"
#include "settings/inifile.h"
#include "settings/renderingstore.h"
#include "settings/rolefonttext.h"

#include <QProcess>

#include <csignal>

namespace {

constexpr char selection[] = "_XSETTINGS_S";

QByteArray quoted(QString text)
{
    for (QChar &character : text) {
        if (!character.isPrint())
            character = QLatin1Char(' ');
    }
    return '"'
           + text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
                 .replace(QLatin1Char('"'), QLatin1String("\\\""))
                 .toUtf8()
           + '"';
}

/// The font as toolkits name it: "DejaVu Sans Bold Italic 10".
QString toolkitFont(const QString &roleText)
{
    const QFont font = textToFont(roleText);
    return font.family() + QLatin1String(font.bold() ? " Bold" : "")
           + QLatin1String(font.italic() ? " Italic" : "") + QLatin1Char(' ')
           + QString::number(font.pointSize());
}

QByteArray renderingLines(const QString &words)
{
    const QStringList list = words.split(QLatin1Char(' '));
    QByteArray lines;
    constexpr int mostDpi = 400;
    if (const int dpi = qBound(0, list.value(0).toInt(), mostDpi))
        lines += "Xft/DPI " + QByteArray::number(dpi * 1024) + '\n';
    const QString antialias = list.value(1);
    if (antialias.isEmpty() || antialias == QLatin1String("unknown")) // fontconfig's files decide
        return lines;
    const bool isSmooth = antialias == QLatin1String("true") || antialias == QLatin1String("1");
    lines += QByteArray("Xft/Antialias ") + (isSmooth ? '1' : '0') + '\n';
    const QString order = list.value(2);
    if (QStringLiteral("none rgb bgr vrgb vbgr").split(QLatin1Char(' ')).contains(order))
        lines += "Xft/RGBA " + quoted(order) + '\n';
    const QString style = list.value(3).remove(QLatin1String("hint"));
    if (QStringLiteral("none slight medium full").split(QLatin1Char(' ')).contains(style))
        lines += QByteArray("Xft/Hinting ") + (style == QLatin1String("none") ? '0' : '1')
                 + "\nXft/HintStyle " + quoted(QLatin1String("hint") + style) + '\n';
    return lines;
}

} // namespace

QByteArray xsettingsFile(const XSettingsTexts &texts)
{
    QByteArray file;
    if (isFontText(texts.font))
        file += "Gtk/FontName " + quoted(toolkitFont(texts.font)) + '\n';
    if (!texts.iconTheme.isEmpty())
        file += "Net/IconThemeName " + quoted(texts.iconTheme) + '\n';
    if (!texts.cursorTheme.isEmpty())
        file += "Gtk/CursorThemeName " + quoted(texts.cursorTheme) + '\n';
    return file + renderingLines(texts.rendering);
}

XSettings::XSettings(const Session &session)
    : m_session(session)
{
    m_session.x.watchSelection(selection);
}

XSettingsTexts XSettings::texts() const
{
    const Values &values = m_session.values;
    XSettingsTexts texts = {values.text("DefaultFont"), values.text("IconTheme"), values.text("CursorTheme"),
                            values.text("XftSettings")};
    // These two are not in the theme file.
    if (texts.cursorTheme.isEmpty())
        texts.cursorTheme = QString::fromLocal8Bit(
            QazIconTheme::getCurrentCursorThemeName(m_session.x.display()));
    if (texts.rendering.isEmpty())
        texts.rendering = QString::fromLocal8Bit(
                              xftSettingsCommand(
                                  iniFile(QStringLiteral("qaz"), QStringLiteral("qaz-admin-theme"))))
                              .section(QLatin1Char(' '), 2)
                              .trimmed();
    return texts;
}

void XSettings::apply()
{
    if (!m_manager && m_session.x.isOwned(selection)) {
        if (!m_isLeft)
            tell(QStringLiteral("Another settings manager runs: fonts, icons and cursors are left to it"));
        m_isLeft = true;
        return;
    }
    m_isLeft = false;
    const QString display = qEnvironmentVariable("DISPLAY").replace(QLatin1Char('/'), QLatin1Char('_'));
    const QString path = ownFile(QStringLiteral("xsettingsd-%1.conf").arg(display));
    if (!m_session.write(path, xsettingsFile(texts())))
        return;
    m_hasNews = m_manager;
    if (m_manager)
        tellManager();
    else if (!m_session.options.once || m_session.options.dryRun) // it would have to stay
        m_manager = m_session.programs.start({QStringLiteral("xsettingsd"), QStringLiteral("-c"), path,
                                              QStringLiteral("-s"),
                                              QString::number(m_session.x.screenNumber())},
                                             [this](bool) {
                                                 m_manager = nullptr;
                                                 if (m_hasNews)
                                                     apply();
                                             });
}

void XSettings::tellManager()
{
    // Before it owns the selection it would be ended by the signal.
    if (m_session.x.isOwned(selection))
        ::kill(pid_t(m_manager->processId()), SIGHUP);
}

void XSettings::selectionChanged()
{
    if (m_manager && m_hasNews)
        tellManager();
    else if (m_isLeft && !m_session.x.isOwned(selection))
        apply();
}
