#pragma once

#include "tests/support/testing.h"

#include <QElapsedTimer>
#include <QProcess>

/// A program of the build in a process of its own, in this process's environment.
class ProgramProcess
{
public:
    ProgramProcess(const QString &program, const QStringList &arguments)
    {
        m_process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/") + program, arguments);
        m_process.waitForStarted();
    }
    ~ProgramProcess()
    {
        m_process.terminate(); // so that its children end with it
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patienceMs))
            m_process.kill();
    }

    QProcess &process() { return m_process; }
    /// Waits until the program has ended; its exit code, or -1 when it goes on or was ended by a signal.
    int exitCode()
    {
        const bool ended = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(patienceMs);
        return ended && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    /// Everything the program has printed to standard error so far.
    QString errors()
    {
        m_errors += m_process.readAllStandardError();
        return QString::fromLocal8Bit(m_errors);
    }

protected:
    static constexpr int patienceMs = 60000; // a loaded machine is no fault of the program

private:
    QProcess m_process;
    QByteArray m_errors;
};

/// What a \a tool prints until it ends.
inline QString output(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished(60000);
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

/// The editor, driven from outside through the X server; killed at the end of the scope.
class EditorProcess : public ProgramProcess
{
public:
    explicit EditorProcess(const QStringList &arguments = {})
        : ProgramProcess("qaz-admin-theme"_s, arguments)
    {}
    ~EditorProcess()
    {
        process().kill();
        process().waitForFinished();
    }

    /// Waits until a window of the program with a title like \a title is mapped, and gives it the focus, which
    /// no window manager does here. False when the program ended first or never showed it.
    bool waitForWindow(const QString &title = "Qaz Theme Editor"_s)
    {
        QElapsedTimer timer;
        timer.start();
        const QString search = "search --onlyvisible --all --pid %1 --name"_s.arg(process().processId());
        QString window;
        while (window.isEmpty() && process().state() == QProcess::Running && !timer.hasExpired(patienceMs)) {
            window = xdotool(search.split(u' ') << title);
            process().waitForFinished(20);
        }
        if (!window.isEmpty())
            xdotool({"windowfocus"_s, "--sync"_s, window});
        return !window.isEmpty();
    }
    /// Sends keys, in xdotool's names with blanks between them, to the window that has the focus.
    static void press(const char *keys)
    {
        xdotool((QLatin1String("key --clearmodifiers ") + QLatin1String(keys)).split(u' '));
    }

private:
    static QString xdotool(const QStringList &arguments) { return output("xdotool"_s, arguments).trimmed(); }
};
