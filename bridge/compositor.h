#pragma once

#include "bridge/session.h"

#include <QStringList>

class QProcess;

/// Starts and stops the compositing manager that the theme file names, where the session has no other.
class Compositor
{
public:
    explicit Compositor(const Session &session);

    /// A command says that compositing is on or off: off and on again restarts a manager that runs.
    void take(bool isOn) { m_wasOff = m_wasOff || !isOn; }
    void apply();
    /// Somebody took or left a selection: it may be the compositing manager's.
    void selectionChanged();

private:
    Session m_session;
    QProcess *m_manager = nullptr;
    bool m_wasOff = false; // within this burst
    bool m_waits = false;  // for another manager to go
};
