#pragma once

#include <QProcess>
#include <QStringList>

/// The real program in a process of its own, driven from outside through the X server.
class EditorProcess
{
public:
    /// Starts the built program with \a arguments in this process's environment.
    explicit EditorProcess(const QStringList &arguments = {});
    /// Kills it if it still runs.
    ~EditorProcess();

    /// Waits until a window of the program with a title like \a title is mapped, and gives it the focus, which
    /// no window manager does here. False when the program ended first or never showed it.
    bool waitForWindow(const QString &title = QStringLiteral("Qaz Theme Editor"));
    /// Waits until the program has ended; its exit code, or -1 when it goes on or was ended by a signal.
    int exitCode();
    /// Sends keys, in xdotool's names with blanks between them, to the window that has the focus.
    static void press(const char *keys);
    /// The title of the window last waited for.
    QString title() const;

    QProcess &process() { return m_process; }
    /// Everything the program has printed to standard error so far.
    QString errors();

private:
    static QString xdotool(const QStringList &arguments);

    QProcess m_process;
    QString m_window;
    QByteArray m_errors;
};
