#include "bridge/windowwatcher.h"

#include <X11/Xlib.h>

WindowWatcher::WindowWatcher(XConnection &x, const std::function<void(const char *)> &report)
    : m_x(x)
    , m_report([](const char *) {})
{
    readWindows(); // those that are there already were not opened now
    m_report = report;
}

void WindowWatcher::take(const XEvent &event)
{
    if (event.type != PropertyNotify)
        return;
    if (event.xproperty.window == m_x.rootWindow() && event.xproperty.atom == m_x.atom("_NET_CLIENT_LIST"))
        readWindows();
    else if (event.xproperty.atom == m_x.atom("_NET_WM_STATE") && m_windows.contains(event.xproperty.window))
        readState(event.xproperty.window);
}

void WindowWatcher::readWindows()
{
    const QVector<unsigned long> windows = m_x.numbers(m_x.rootWindow(), "_NET_CLIENT_LIST");
    for (const unsigned long window : windows) {
        if (m_windows.contains(window))
            continue;
        m_x.watchProperties(window);
        m_windows.insert(window, stateOf(window));
        m_report("OpenSound");
    }
    for (auto known = m_windows.begin(); known != m_windows.end();) {
        if (windows.contains(known.key())) {
            ++known;
            continue;
        }
        known = m_windows.erase(known);
        m_report("CloseSound");
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
        m_report(now.isHidden ? "MinimizeSound" : "RestoreUpSound");
    if (now.isMaximized != before.isMaximized)
        m_report(now.isMaximized ? "MaximizeSound" : "RestoreDownSound");
    if (now.wantsAttention && !before.wantsAttention)
        m_report("ForceTrayMessageSound");
}
