#include "bridge/bridge.h"

#include "bridge/options.h"
#include "bridge/programs.h"
#include "bridge/values.h"
#include "settings/soundassignments.h"
#include "settings/textvalues.h"
#include "settings/wmcommands.h"

#include <QCoreApplication>

#include <algorithm>

#include <X11/Xlib.h>

namespace {

constexpr int burstMs = 50;
constexpr int longestFarewellMs = 3000;
constexpr int longestBurstMs = 1000; // whoever goes on announcing does not keep the others waiting

enum Action : unsigned {
    ShowWallpaper = 1,
    TellPrograms = 2,
    SetScreensaver = 4,
    Composite = 8,
    Decorate = 16,
    AssignSounds = 32,
    Everything = 63
};

struct Rule {
    const char *key;
    Action action;
};

// clang-format off
constexpr Rule rules[] = {
    {"WallPaper",              ShowWallpaper},
    {"WallPaperPos",           ShowWallpaper},
    {"WallPaperPeriod",        ShowWallpaper},
    {"WallPaperLocal",         ShowWallpaper},
    {"DesktopColor",           ShowWallpaper},
    {"DefaultFont",            TellPrograms},
    {"IconTheme",              TellPrograms},
    {"CursorTheme",            TellPrograms},
    {"XftSettings",            TellPrograms},
    {"ScreenSaverDelay",       SetScreensaver},
    {"LockerDpmsOffTimeout",   SetScreensaver},
    {"UseComposite",           Composite},
    {"CompositeManager",       Composite},
    {"TitlebarColor",          Decorate},
    {"TitlebarColor2",         Decorate},
    {"TitlebarActiveColor",    Decorate},
    {"TitlebarActiveColor2",   Decorate},
    {"TitleStringColor",       Decorate},
    {"TitleStringActiveColor", Decorate},
    {"FrameColor",             Decorate},
    {"FrameActiveColor",       Decorate},
    {"MenuColor",              Decorate},
    {"MenuColor2",             Decorate},
    {"MenuActiveColor",        Decorate},
    {"MenuStringColor",        Decorate},
    {"MenuStringActiveColor",  Decorate},
    {"TitleFont",              Decorate},
    {"CascadeMenuFont",        Decorate},
    {"EnableSound",            AssignSounds},
    {"SoundTheme",             AssignSounds}};
// clang-format on

unsigned actionsOf(const QString &key)
{
    const auto rule = std::find_if(std::begin(rules), std::end(rules),
                                   [&key](const Rule &row) { return key == QLatin1String(row.key); });
    if (rule != std::end(rules))
        return rule->action;
    const bool isSound = std::any_of(
        std::begin(soundEvents), std::end(soundEvents),
        [&key](const SoundEvent &event) { return key == QLatin1String(event.key->name); });
    return isSound ? unsigned(AssignSounds) : 0;
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
    m_actions = Everything;
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
    m_watcher = std::make_unique<WindowWatcher>(x, [this](const char *soundKey) { m_sounds.play(soundKey); });
    x.listen([this](const XEvent &event) { take(event); });
    m_sounds.play("SystemStartSound");
}

void Bridge::applyAnew()
{
    m_session.values.reload();
    gather(Everything);
}

void Bridge::endSession()
{
    m_sounds.play("SystemExitSound");
    connect(&m_session.programs, &Programs::ended, this, &Bridge::quitWhenSilent, Qt::UniqueConnection);
    QTimer::singleShot(longestFarewellMs, QCoreApplication::instance(), &QCoreApplication::quit);
    quitWhenSilent();
}

void Bridge::quitWhenSilent()
{
    if (m_sounds.isSilent())
        QCoreApplication::quit();
}

void Bridge::take(const XEvent &event)
{
    const QByteArray command = m_receiver.take(event);
    if (!command.isNull())
        takeCommand(command);
    else if (event.type == PropertyNotify && event.xproperty.window == m_session.x.rootWindow())
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
    const unsigned actions = readUpdateCommand(command, &key, &value) ? actionsOf(key) : 0;
    if (actions == 0) {
        if (m_session.options.verbose)
            tell(QStringLiteral("Not for this program: ") + QString::fromLocal8Bit(command).trimmed());
        return;
    }
    m_session.values.announce(key, value);
    if (key == QLatin1String("UseComposite"))
        m_compositor.take(countsAsTrue(value));
    gather(actions);
}

void Bridge::gather(unsigned actions)
{
    if (m_actions == 0)
        m_burst.start();
    m_actions |= actions;
    m_burstTimer.start(int(qBound(0LL, longestBurstMs - m_burst.elapsed(), qint64(burstMs))));
}

void Bridge::carryOut()
{
    const unsigned actions = m_actions;
    m_actions = 0;
    m_session.values.refresh();
    if (actions & ShowWallpaper)
        m_wallpaper.apply();
    if (actions & TellPrograms)
        m_xsettings.apply();
    if (actions & SetScreensaver)
        applyScreensaver();
    if (actions & Composite)
        m_compositor.apply();
    if (actions & Decorate)
        m_openbox.apply();
    if (actions & AssignSounds)
        m_sounds.apply();
}

void Bridge::applyScreensaver()
{
    constexpr int longestDelay = 32767; // seconds: the protocol has 15 bits for it, and one more for DPMS
    const int delay = m_session.values.number("ScreenSaverDelay", "600", longestDelay);
    const int off = m_session.values.number("LockerDpmsOffTimeout", "60", 2 * longestDelay);
    const QString xset = QStringLiteral("xset");
    const QString none = QStringLiteral("0");
    QStringList dpms = {xset, QStringLiteral("-dpms")};
    if (off > 0)
        dpms = QStringList{xset, QStringLiteral("dpms"), none, none, QString::number(off)};
    m_session.programs.run(xset, {{xset, QStringLiteral("s"), QString::number(delay)}, dpms});
}

void Bridge::rootPropertyChanged(unsigned long property)
{
    if (property == m_session.x.atom("_NET_CURRENT_DESKTOP") && m_session.x.currentDesktop() != m_desktop) {
        m_desktop = m_session.x.currentDesktop();
        m_wallpaper.changeDesktop();
        m_sounds.play("PagingSound");
    } else if (property == m_session.x.atom("_NET_SUPPORTING_WM_CHECK")
               && m_session.x.windowManager() != m_windowManager) {
        m_windowManager = m_session.x.windowManager();
        gather(Decorate);
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
