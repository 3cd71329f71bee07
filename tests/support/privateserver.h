#pragma once

#include "tests/support/environment.h"

#include <memory>

/// A second X server, which a test may end; the programs started meanwhile use it.
class PrivateServer
{
public:
    PrivateServer()
    {
        // A reset, which the last client's end would start, refuses those who connect meanwhile.
        m_process.start("/usr/bin/Xvfb"_s,
                        "-displayfd 1 -noreset -nolisten tcp -screen 0 1024x768x24"_s.split(u' '));
        if (!m_process.waitForReadyRead(60000))
            qFatal("Can't start a server");
        m_display = std::make_unique<ScopedEnvironment>("DISPLAY", ':' + m_process.readLine().trimmed());
    }
    ~PrivateServer() { end(); }
    void end()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    std::unique_ptr<ScopedEnvironment> m_display;
};
