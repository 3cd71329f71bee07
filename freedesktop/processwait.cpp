#include "freedesktop/processwait.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QX11Info>

#include <cstdlib>

#include <X11/Xlib.h>
#include <poll.h>

namespace {

constexpr int limitMs = 30000;
constexpr int sliceMs = 200;

bool isServerLost()
{
    if (!QX11Info::isPlatformX11())
        return false;
    pollfd connection = {ConnectionNumber(QX11Info::display()), POLLRDHUP, {}};
    return ::poll(&connection, 1, 0) > 0;
}

} // namespace

bool succeeds(QProcess &process)
{
    const QDeadlineTimer deadline(limitMs);
    while (!process.waitForFinished(sliceMs)) {
        if (process.state() == QProcess::NotRunning)
            return false;
        if (isServerLost())
            std::exit(EXIT_FAILURE);
        if (deadline.hasExpired())
            process.kill();
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}
