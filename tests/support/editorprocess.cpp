#include "tests/support/editorprocess.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace {

constexpr int patienceMs = 60000; // a loaded machine is no fault of the program

} // namespace

EditorProcess::EditorProcess(const QStringList &arguments)
{
    m_process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-admin-theme"), arguments);
    m_process.waitForStarted();
}

EditorProcess::~EditorProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool EditorProcess::waitForWindow(const QString &title)
{
    QElapsedTimer timer;
    timer.start();
    const QString pid = QString::number(m_process.processId());
    m_window.clear();
    while (m_window.isEmpty() && m_process.state() == QProcess::Running && !timer.hasExpired(patienceMs)) {
        const QString search = QStringLiteral("search --onlyvisible --all --pid %1 --name").arg(pid);
        m_window = xdotool(search.split(QLatin1Char(' ')) << title);
        m_process.waitForFinished(20);
    }
    if (!m_window.isEmpty())
        xdotool({QStringLiteral("windowfocus"), QStringLiteral("--sync"), m_window});
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
    tool.start(QStringLiteral("xdotool"), arguments);
    tool.waitForFinished(patienceMs);
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

void EditorProcess::press(const char *keys)
{
    xdotool((QLatin1String("key --clearmodifiers ") + QLatin1String(keys)).split(QLatin1Char(' ')));
}

QString EditorProcess::title() const
{
    return xdotool({QStringLiteral("getwindowname"), m_window});
}

QString EditorProcess::errors()
{
    m_errors += m_process.readAllStandardError();
    return QString::fromLocal8Bit(m_errors);
}
