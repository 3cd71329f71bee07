#include "tests/bridge/bridgeprocess.h"

#include "settings/wmcommands.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QX11Info>

#include <X11/Xlib.h>

namespace {

constexpr int patienceMs = 60000; // a loaded machine is no fault of the program

} // namespace

BridgeProcess::BridgeProcess(const QStringList &arguments)
{
    process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-wm-bridge"), arguments);
    process.waitForStarted();
}

BridgeProcess::~BridgeProcess()
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate(); // so that its children end with it
    if (!process.waitForFinished(patienceMs))
        process.kill();
}

bool BridgeProcess::isServing()
{
    Display *display = QX11Info::display();
    return XGetSelectionOwner(display, XInternAtom(display, "_QAZWM_BRIDGE_S0", False)) != 0;
}

int BridgeProcess::exitCode()
{
    const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(patienceMs);
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QStringList BridgeProcess::errors()
{
    m_errors += process.readAllStandardError();
    return QString::fromLocal8Bit(m_errors)
        .split(QLatin1Char('\n'))
        .filter(QStringLiteral("qaz-wm-bridge: "));
}

void announce(const char *key, const QString &value)
{
    sendToWindowManager(updateCommand(QLatin1String(key), value));
}

QColor pixel(int x, int y)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, x, y, 1, 1).toImage().pixelColor(0, 0);
}

QString output(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished(patienceMs);
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}
