#include "tests/support/editorprocess.h"

#include "tests/support/literals.h"

#include <QElapsedTimer>

static constexpr int patienceMs = 60000; // a loaded machine is no fault of the program

EditorProcess::EditorProcess(const QStringList &arguments)
{
    m_process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-admin-theme"), arguments);
    m_process.waitForStarted();
}

EditorProcess::~EditorProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool EditorProcess::waitForWindow(const QString &title)
{
    QElapsedTimer timer;
    timer.start();
    const QString search = "search --onlyvisible --all --pid %1 --name"_s.arg(m_process.processId());
    m_window.clear();
    while (m_window.isEmpty() && m_process.state() == QProcess::Running && !timer.hasExpired(patienceMs)) {
        m_window = xdotool(search.split(u' ') << title);
        m_process.waitForFinished(20);
    }
    if (!m_window.isEmpty())
        xdotool({"windowfocus"_s, "--sync"_s, m_window});
    return !m_window.isEmpty();
}

int EditorProcess::exitCode()
{
    const bool ended = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(patienceMs);
    return ended && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString EditorProcess::xdotool(const QStringList &arguments)
{
    QProcess tool;
    tool.start("xdotool"_s, arguments);
    tool.waitForFinished(patienceMs);
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

void EditorProcess::press(const char *keys)
{
    xdotool((QLatin1String("key --clearmodifiers ") + QLatin1String(keys)).split(u' '));
}

QString EditorProcess::title() const
{
    return xdotool({"getwindowname"_s, m_window});
}

QString EditorProcess::errors()
{
    m_errors += m_process.readAllStandardError();
    return QString::fromLocal8Bit(m_errors);
}
