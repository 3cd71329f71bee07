#include "app/shutdown.h"

#include "app/configdialog.h"
#include "app/myapplication.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QSocketNotifier>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <X11/Xlib.h>
#include <sys/eventfd.h>
#include <sys/wait.h>
#include <unistd.h>

MyApplication *myApp = nullptr;
ConfigDialog *dlg = nullptr;

namespace {

int terminationEvent = -1;

/// Sends \a signal to the programs that the process \a parent started, and to theirs.
void signalChildren(qint64 parent, int signal)
{
    QFile list(QStringLiteral("/proc/%1/task/%1/children").arg(parent));
    if (!list.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &child : list.readAll().simplified().split(' ')) {
        if (const pid_t pid = child.toInt(); pid > 0) {
            signalChildren(pid, signal);
            ::kill(pid, signal);
        }
    }
}

/// Ends the programs that this one started. One that does not end when it is asked, as a player whose device hangs, is
/// killed.
void endChildren()
{
    const QDeadlineTimer patience(300);
    signalChildren(::getpid(), SIGTERM);
    while (!patience.hasExpired() && ::waitpid(-1, nullptr, WNOHANG) >= 0)
        QThread::msleep(10);
    signalChildren(::getpid(), SIGKILL);
}

/// Keeps what outlives the loss. Nothing is destroyed: the loss is noticed anywhere on the stack, also below a modal
/// dialog or in the middle of an Apply, and every widget would talk to the server once more.
void endWithoutDisplay()
{
    if (!myApp)
        return;
    if (dlg)
        dlg->storeSize();
    endChildren();
    ::_exit(EXIT_FAILURE);
}

} // namespace

void handleTermination()
{
    // Quitting is not safe in a signal handler: the handler wakes the event loop, which then quits, also
    // the nested one of a modal dialog.
    terminationEvent = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    auto *notifier = new QSocketNotifier(terminationEvent, QSocketNotifier::Read, myApp);
    QObject::connect(notifier, &QSocketNotifier::activated, myApp, &QCoreApplication::quit);
    std::signal(SIGTERM, TrapSignal);
}

void handleLostDisplay()
{
    XSetIOErrorHandler(CatchFatalIOError);
    // Qt's plugin calls exit() when it finds the connection broken, before Xlib's handler is asked.
    std::atexit(endWithoutDisplay);
}

void TrapSignal(int sig)
{
    const int before = errno;
    if (sig == SIGTERM)
        ::eventfd_write(terminationEvent, 1);
    errno = before;
}

int CatchFatalIOError(Display * /*display*/)
{
    endWithoutDisplay();
    return 0;
}
