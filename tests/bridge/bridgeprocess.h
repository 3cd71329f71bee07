#pragma once

#include "settings/wmcommands.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>

/// The real program, started in this process's environment and ended at the end of the scope.
class BridgeProcess
{
public:
    explicit BridgeProcess(const QStringList &arguments = {})
    {
        process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-wm-bridge"), arguments);
        process.waitForStarted();
    }
    ~BridgeProcess()
    {
        if (process.state() == QProcess::NotRunning)
            return;
        process.terminate(); // so that its children end with it
        if (!process.waitForFinished(patienceMs))
            process.kill();
    }

    /// Whether a bridge serves the screen.
    static bool isServing();
    /// Waits until it has ended; its exit code, or -1 when it goes on or was ended by a signal.
    int exitCode()
    {
        const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(patienceMs);
        return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    /// The lines that it has printed to standard error so far.
    QStringList errors()
    {
        m_errors += process.readAllStandardError();
        return QString::fromLocal8Bit(m_errors).split(u'\n', Qt::SkipEmptyParts);
    }

    QProcess process;

private:
    static constexpr int patienceMs = 60000; // a loaded machine is no fault of the program

    QByteArray m_errors;
};

/// Announces a value as the editor does.
inline void announce(const char *key, const QString &value)
{
    sendToWindowManager(updateCommand(QLatin1String(key), value));
}

/// The colour on the screen; where no window is unless told otherwise.
inline QColor pixel(int x = 3, int y = 1020)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, x, y, 1, 1).toImage().pixelColor(0, 0);
}

/// What a tool prints.
inline QString output(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished(60000);
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}
