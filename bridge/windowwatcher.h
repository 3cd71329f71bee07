#pragma once

#include "bridge/xconnection.h"

#include <QHash>

class Sounds;

/// Sees what happens to the windows of an EWMH window manager, and plays the sounds for it.
class WindowWatcher
{
public:
    /// \a x and \a sounds are the caller's.
    WindowWatcher(XConnection &x, Sounds &sounds);

    void take(const _XEvent &event);

private:
    struct State {
        bool isHidden = false;
        bool isMaximized = false;
        bool wantsAttention = false;
    };

    QVector<unsigned long> clients() const;
    void add(XConnection::Window window);
    void readClients();
    void readState(XConnection::Window window);
    State stateOf(XConnection::Window window) const;

    XConnection &m_x;
    Sounds &m_sounds;
    QHash<XConnection::Window, State> m_windows;
};
