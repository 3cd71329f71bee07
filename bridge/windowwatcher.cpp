#include "bridge/windowwatcher.h"

#include "bridge/sounds.h"

#include <X11/Xlib.h>

WindowWatcher::WindowWatcher(XConnection &x, Sounds &sounds)
    : m_x(x)
    , m_sounds(sounds)
{
    for (const unsigned long window : clients())
        add(window);
}

void WindowWatcher::take(const XEvent &event)
{
    if (event.type != PropertyNotify)
        return;
    if (event.xproperty.atom == m_x.atom("_NET_CLIENT_LIST"))
        readClients();
    else if (event.xproperty.atom == m_x.atom("_NET_WM_STATE") && m_windows.contains(event.xproperty.window))
        readState(event.xproperty.window);
}

QVector<unsigned long> WindowWatcher::clients() const
{
    return m_x.numbers(m_x.rootWindow(), "_NET_CLIENT_LIST");
}

void WindowWatcher::add(XConnection::Window window)
{
    XSelectInput(m_x.display(), window, PropertyChangeMask);
    m_windows.insert(window, stateOf(window));
}

void WindowWatcher::readClients()
{
    const QVector<unsigned long> windows = clients();
    for (const unsigned long window : windows) {
        if (m_windows.contains(window))
            continue;
        add(window);
        m_sounds.play("OpenSound");
    }
    for (const unsigned long window : m_windows.keys()) {
        if (windows.contains(window))
            continue;
        m_windows.remove(window);
        m_sounds.play("CloseSound");
    }
}

WindowWatcher::State WindowWatcher::stateOf(XConnection::Window window) const
{
    const QVector<unsigned long> atoms = m_x.numbers(window, "_NET_WM_STATE");
    const auto has = [this, &atoms](const char *name) { return atoms.contains(m_x.atom(name)); };
    return {has("_NET_WM_STATE_HIDDEN"),
            has("_NET_WM_STATE_MAXIMIZED_VERT") && has("_NET_WM_STATE_MAXIMIZED_HORZ"),
            has("_NET_WM_STATE_DEMANDS_ATTENTION")};
}

void WindowWatcher::readState(XConnection::Window window)
{
    const State before = m_windows.value(window);
    const State now = stateOf(window);
    m_windows.insert(window, now);
    if (now.isHidden != before.isHidden)
        m_sounds.play(now.isHidden ? "MinimizeSound" : "RestoreUpSound");
    if (now.isMaximized != before.isMaximized)
        m_sounds.play(now.isMaximized ? "MaximizeSound" : "RestoreDownSound");
    if (now.wantsAttention && !before.wantsAttention)
        m_sounds.play("ForceTrayMessageSound");
}
