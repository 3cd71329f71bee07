#include "freedesktop/processwait.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QX11Info>

#include <cstdlib>

#include <X11/Xlib.h>
#include <poll.h>

namespace {

constexpr int sliceMs = 200;

bool isServerLost()
{
    if (!QX11Info::isPlatformX11())
        return false;
    pollfd connection = {ConnectionNumber(QX11Info::display()), POLLRDHUP, 0};
    return ::poll(&connection, 1, 0) > 0;
}

} // namespace

bool waitForEnd(QProcess &process, int limit)
{
    QElapsedTimer timer;
    timer.start();
    while (!process.waitForFinished(sliceMs)) {
        if (process.state() == QProcess::NotRunning || timer.hasExpired(limit))
            return false;
        if (isServerLost())
            std::exit(EXIT_FAILURE);
    }
    return true;
}
