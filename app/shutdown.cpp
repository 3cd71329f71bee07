#include "app/shutdown.h"

#include "app/configdialog.h"
#include "app/myapplication.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <X11/Xlib.h>
#include <fcntl.h>
#include <unistd.h>

MyApplication *myApp = nullptr;
ConfigDialog *dlg = nullptr;

namespace {

int terminationPipe[2] = {-1, -1};

/// Ends the dialog, whose destructor stores its size and ends what its pages started.
void endDialog()
{
    if (!myApp || !dlg)
        return;
    ConfigDialog *dialog = dlg;
    dlg = nullptr;
    // A modal dialog on the stack is a child of ours and must not be deleted from under its caller.
    if (QApplication::activeModalWidget())
        dialog->storeSize();
    else
        delete dialog;
    QCoreApplication::quit();
}

} // namespace

void handleTermination()
{
    // Quitting is not safe in a signal handler: the handler wakes the event loop, which then quits, also
    // the nested one of a modal dialog.
    if (::pipe2(terminationPipe, O_CLOEXEC | O_NONBLOCK) == 0) {
        auto *notifier = new QSocketNotifier(terminationPipe[0], QSocketNotifier::Read, myApp);
        QObject::connect(notifier, &QSocketNotifier::activated, myApp, &QCoreApplication::quit);
    }
    std::signal(SIGTERM, TrapSignal);
}

void handleLostDisplay()
{
    XSetIOErrorHandler(CatchFatalIOError);
    // Qt's plugin calls exit() when it finds the connection broken, before Xlib's handler is asked.
    std::atexit(endDialog);
}

void TrapSignal(int sig)
{
    if (sig != SIGTERM || !myApp)
        return;
    const int before = errno;
    const char byte = 0;
    // A full pipe has woken the loop already.
    [[maybe_unused]] const ssize_t written = ::write(terminationPipe[1], &byte, 1);
    errno = before;
}

int CatchFatalIOError(Display * /*display*/)
{
    endDialog();
    return 0;
}
