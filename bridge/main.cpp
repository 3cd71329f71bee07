// Carries out on an ordinary X11 session what the theme editor announces to the window manager.

#include "bridge/bridge.h"
#include "bridge/options.h"
#include "bridge/programs.h"
#include "bridge/values.h"
#include "bridge/xconnection.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int wrongOption = 2;

int signalPipe[2] = {-1, -1};

/// Next to nothing is safe in a signal handler: it wakes the event loop.
void noteSignal(int number)
{
    const int before = errno;
    const char byte = char(number);
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = before;
}

void handleSignals(Bridge *bridge)
{
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, bridge);
    QObject::connect(notifier, &QSocketNotifier::activated, bridge, [bridge] {
        for (char number = 0; ::read(signalPipe[0], &number, 1) == 1;)
            number == SIGHUP ? bridge->applyAnew() : bridge->endSession();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, noteSignal);
}

/// Whether the screen is to be served; \a status is the exit status if not.
bool mayServe(XConnection *x, const Options &options, int *status)
{
    *status = 1;
    if (!x->isOpen()) {
        tell(QStringLiteral("Can't open the display"));
        return false;
    }
    x->watchSelection("_QAZWM_S"); // before looking, so that no owner comes in between
    if (x->isOwned("_QAZWM_S")) {
        tell(QStringLiteral("A Qaz window manager runs here and follows the theme file itself"));
        *status = 0;
    } else if (!options.once && !options.dryRun && !x->claimSelection("_QAZWM_BRIDGE_S", options.replace)) {
        tell(QStringLiteral("Another bridge serves this screen already; --replace takes over"));
    } else {
        return true;
    }
    return false;
}

int serve(const Options &options)
{
    XConnection x;
    int status = 0;
    if (!mayServe(&x, options, &status))
        return status;
    QObject::connect(&x, &XConnection::serverLost, QCoreApplication::instance(), [] {
        tell(QStringLiteral("The X server is gone"));
        QCoreApplication::exit(1);
    });
    Values values(options.themeFile);
    Programs programs(options.dryRun, options.verbose);
    Bridge bridge({x, values, programs, options});
    handleSignals(&bridge);
    return options.once && programs.isIdle() ? 0 : QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Options options;
    QString error;
    if (!readOptions(QCoreApplication::arguments(), &options, &error)) {
        tell(error);
        return wrongOption;
    }
    if (options.answer.isEmpty())
        return serve(options);
    std::fputs(options.answer.toLocal8Bit().constData(), stdout);
    return 0;
}
