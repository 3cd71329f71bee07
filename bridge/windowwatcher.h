#pragma once

#include "bridge/xconnection.h"

#include <QHash>

/// Sees what happens to the windows of an EWMH window manager.
class WindowWatcher
{
public:
    /// \a report gets the theme file's key of the sound for each event; \a x is the caller's.
    WindowWatcher(XConnection &x, const std::function<void(const char *soundKey)> &report);

    void take(const _XEvent &event);

private:
    struct State {
        bool isHidden = false;
        bool isMaximized = false;
        bool wantsAttention = false;
    };

    void readWindows();
    void readState(XConnection::Window window);
    State stateOf(XConnection::Window window) const;

    XConnection &m_x;
    std::function<void(const char *soundKey)> m_report;
    QHash<XConnection::Window, State> m_windows;
};
