#pragma once

#include <QColor>
#include <QProcess>
#include <QStringList>

/// The real program, started in this process's environment and killed at the end of the scope.
class BridgeProcess
{
public:
    explicit BridgeProcess(const QStringList &arguments = {});
    ~BridgeProcess();

    /// Whether a bridge serves the screen.
    static bool isServing();
    /// Waits until it has ended; its exit code, or -1 when it goes on or was ended by a signal.
    int exitCode();
    /// Its own lines on standard error so far; a sanitizer may print others.
    QStringList errors();

    QProcess process;

private:
    QByteArray m_errors;
};

/// Announces a value as the editor does.
void announce(const char *key, const QString &value);

/// The colour on the screen.
QColor pixel(int x, int y);

/// What a tool prints.
QString output(const QString &tool, const QStringList &arguments);
