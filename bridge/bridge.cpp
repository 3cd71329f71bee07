#include "bridge/bridge.h"

#include "bridge/programs.h"
#include "settings/soundassignments.h"
#include "settings/textvalues.h"
#include "settings/wmcommands.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

#include <X11/Xlib.h>

namespace {

constexpr int burstMs = 50;
constexpr int longestFarewellMs = 3000;
constexpr int longestBurstMs = 1000; // whoever goes on announcing does not keep the others waiting

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QStringList soundKeys()
{
    QStringList keys;
    for (const SoundEvent &event : soundEvents)
        keys.append(QLatin1String(event.key->name));
    return keys;
}

} // namespace

Bridge::Bridge(const Session &session)
    : m_session(session)
    , m_wallpaper(session)
    , m_xsettings(session)
    , m_compositor(session)
    , m_openbox(session)
    , m_sounds(session)
    , m_receiver(session.x.display())
    , m_desktop(session.x.currentDesktop())
    , m_windowManager(session.x.windowManager())
{
    m_burstTimer.setSingleShot(true);
    connect(&m_burstTimer, &QTimer::timeout, this, &Bridge::carryOut);
    if (m_session.options.once)
        connect(&m_session.programs, &Programs::idle, QCoreApplication::instance(), &QCoreApplication::quit);
    else
        follow();
    m_actions = {
        {words("WallPaper WallPaperPos WallPaperPeriod WallPaperLocal DesktopColor"),
         [this] { m_wallpaper.apply(); }},
        {words("DefaultFont IconTheme CursorTheme XftSettings"), [this] { m_xsettings.apply(); }},
        {words("ScreenSaverDelay LockerDpmsOffTimeout"), [this] { applyScreensaver(); }},
        {words("UseComposite CompositeManager"), [this] { m_compositor.apply(); }},
        {words("TitlebarColor TitlebarColor2 TitlebarActiveColor TitlebarActiveColor2 TitleStringColor "
               "TitleStringActiveColor FrameColor FrameActiveColor MenuColor MenuColor2 MenuActiveColor "
               "MenuStringColor MenuStringActiveColor TitleFont CascadeMenuFont"),
         [this] { m_openbox.apply(); }},
        {words("EnableSound SoundTheme") + soundKeys(), [this] { m_sounds.apply(); }}};
    carryOut();
}

void Bridge::follow()
{
    XConnection &x = m_session.x;
    connect(&x, &XConnection::selectionChanged, this, &Bridge::selectionChanged);
    connect(&x, &XConnection::selectionLost, this, [] {
        tell(QStringLiteral("Another bridge has taken over"));
        QCoreApplication::quit();
    });
    m_watcher = std::make_unique<WindowWatcher>(x, m_sounds);
    x.listen([this](const XEvent &event) { take(event); });
    m_sounds.play("SystemStartSound");
}

void Bridge::applyAnew()
{
    m_session.values.forgetAnnounced();
    for (Action &action : m_actions)
        action.isDue = true;
    waitForMore();
}

void Bridge::endSession()
{
    m_sounds.play("SystemExitSound");
    connect(&m_session.programs, &Programs::ended, this, [this] {
        if (m_sounds.isSilent())
            QCoreApplication::quit();
    });
    QTimer::singleShot(m_sounds.isSilent() ? 0 : longestFarewellMs, QCoreApplication::instance(),
                       &QCoreApplication::quit);
}

void Bridge::take(const XEvent &event)
{
    const QByteArray command = m_receiver.take(event);
    if (!command.isNull())
        takeCommand(command);
    else if (event.type == PropertyNotify) // only the root window has those that count
        rootPropertyChanged(event.xproperty.atom);
    m_watcher->take(event);
}

void Bridge::takeCommand(const QByteArray &command)
{
    QString key;
    QString value;
    if (command == restartCommand) {
        applyAnew();
        return;
    }
    if (!readUpdateCommand(command, &key, &value) || !demand(key)) {
        if (m_session.options.verbose)
            tell(QStringLiteral("Not for this program: ") + QString::fromLocal8Bit(command).trimmed());
        return;
    }
    m_session.values.announce(key, value);
    if (key == QLatin1String("UseComposite"))
        m_compositor.take(countsAsTrue(value));
}

bool Bridge::demand(const QString &key)
{
    const auto action = std::find_if(m_actions.begin(), m_actions.end(),
                                     [&key](const Action &each) { return each.keys.contains(key); });
    if (action == m_actions.end())
        return false;
    action->isDue = true;
    waitForMore();
    return true;
}

void Bridge::waitForMore()
{
    if (!m_burstTimer.isActive())
        m_burst.start();
    m_burstTimer.start(int(qBound(0LL, longestBurstMs - m_burst.elapsed(), qint64(burstMs))));
}

void Bridge::carryOut()
{
    m_session.values.refresh();
    for (Action &action : m_actions) {
        if (std::exchange(action.isDue, false))
            action.carryOut();
    }
}

void Bridge::applyScreensaver()
{
    constexpr int longestDelay = 32767; // seconds: the protocol has 15 bits for it, and one more for DPMS
    const int delay = m_session.values.number("ScreenSaverDelay", longestDelay, "600");
    const int off = m_session.values.number("LockerDpmsOffTimeout", 2 * longestDelay, "60");
    const QString xset = QStringLiteral("xset");
    const QString none = QStringLiteral("0");
    QStringList dpms = {xset, QStringLiteral("-dpms")};
    if (off)
        dpms = QStringList{xset, QStringLiteral("dpms"), none, none, QString::number(off)};
    m_session.programs.run({{xset, QStringLiteral("s"), QString::number(delay)}, dpms});
}

void Bridge::rootPropertyChanged(unsigned long property)
{
    if (property == m_session.x.atom("_NET_CURRENT_DESKTOP") && m_session.x.currentDesktop() != m_desktop) {
        m_desktop = m_session.x.currentDesktop();
        m_wallpaper.show();
        m_sounds.play("PagingSound");
    } else if (property == m_session.x.atom("_NET_SUPPORTING_WM_CHECK")
               && m_session.x.windowManager() != m_windowManager) {
        m_windowManager = m_session.x.windowManager();
        demand(QStringLiteral("TitlebarColor")); // it may be Openbox
    }
}

void Bridge::selectionChanged()
{
    if (m_session.x.isOwned("_QAZWM_S")) {
        tell(QStringLiteral("A Qaz window manager has come and follows the theme file itself"));
        QCoreApplication::quit();
        return;
    }
    m_xsettings.selectionChanged();
    m_compositor.selectionChanged();
}
