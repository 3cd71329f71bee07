#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QX11Info>

#include "bench/figures.h"
#include "settings/wmcommands.h"

#include <X11/Xlib.h>

namespace {

constexpr int rounds = 40;
constexpr double burstMs = 50; // that the bridge gathers
constexpr double delayLimitMs = 100;

/// Waits until somebody has set the property of the root window.
void waitForProperty(Display *display, const char *name)
{
    const Atom property = XInternAtom(display, name, False);
    XEvent event = {};
    do {
        XWindowEvent(display, DefaultRootWindow(display), PropertyChangeMask, &event);
    } while (event.xproperty.atom != property);
}

} // namespace

/// How long after a burst of commands the desktop's new colour is on the screen.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    Display *display = XOpenDisplay(nullptr); // of our own: Qt reads its connection's events itself
    XSelectInput(display, DefaultRootWindow(display), PropertyChangeMask);
    XSync(display, False);
    QProcess bridge;
    bridge.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-wm-bridge"), QStringList());
    waitForProperty(display, "_XROOTPMAP_ID");

    std::vector<double> delays;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        for (int value = 0; value < 30; ++value) {
            timer.start();
            sendToWindowManager(
                updateCommand(QStringLiteral("WallPaper"),
                              QStringLiteral("#%1").arg(round * 100 + value, 6, 10, QLatin1Char('0'))));
        }
        waitForProperty(display, "_XROOTPMAP_ID");
        delays.push_back(double(timer.nsecsElapsed()) / 1e6 - burstMs);
    }
    bridge.terminate();
    bridge.waitForFinished();
    XCloseDisplay(display);
    std::printf("%-42s %8.2f ms\n", "A command after its burst, worst of 40",
                *std::max_element(delays.begin(), delays.end()));
    return report("A command after its burst, median", median(delays), delayLimitMs, "ms") ? 0 : 1;
}
