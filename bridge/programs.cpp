#include "bridge/programs.h"

#include "base/diagnostics.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <cstdio>

#include <sys/prctl.h>

namespace {

constexpr int hangMs = 10000;
constexpr int endMs = 2000;

struct Tool {
    const char *name;
    const char *package;
};

constexpr Tool tools[] = {{"aplay", "alsa-utils"},       {"feh", "feh"},
                          {"openbox", "openbox"},        {"qaz-svg2png", "qaz-admin-theme"},
                          {"xset", "x11-xserver-utils"}, {"xsettingsd", "xsettingsd"}};

/// Ends with the bridge, however that ends: a settings manager that stayed would keep the next one from its place.
class Child : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override { ::prctl(PR_SET_PDEATHSIG, SIGTERM); }
};

/// The end of a line about \a tool; a compositing manager may be of any package.
QString packageHint(const QString &tool)
{
    for (const Tool &known : tools) {
        if (tool == QLatin1String(known.name))
            return QStringLiteral(" (Debian package %1)").arg(QLatin1String(known.package));
    }
    return {};
}

QString findProgram(const QString &name)
{
    const QString inPath = QStandardPaths::findExecutable(name);
    return inPath.isEmpty() ? QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()})
                            : inPath;
}

} // namespace

void tell(const QString &text)
{
    QString line = text; // which may quote a command, and anybody on the display can send one
    for (QChar &character : line) {
        if (!character.isPrint())
            character = QLatin1Char('?');
    }
    printDiagnosticAs("qaz-wm-bridge", line);
}

QString shellLine(const QStringList &command)
{
    static const QRegularExpression special(QStringLiteral("[^A-Za-z0-9_@%+=:,./-]"));
    QStringList words;
    for (QString word : command) {
        if (word.isEmpty() || word.contains(special))
            word = QLatin1Char('\'') + word.replace(QLatin1Char('\''), QLatin1String("'\\''"))
                   + QLatin1Char('\'');
        words += word;
    }
    return words.join(QLatin1Char(' '));
}

Programs::Programs(bool printOnly, bool verbose)
    : m_printOnly(printOnly)
    , m_verbose(verbose)
{}

Programs::~Programs()
{
    const auto children = findChildren<QProcess *>();
    for (QProcess *process : children) {
        process->disconnect(this);
        process->terminate();
    }
    for (QProcess *process : children) {
        if (process->state() != QProcess::NotRunning && !process->waitForFinished(endMs)) {
            process->kill();
            process->waitForFinished(endMs);
        }
    }
}

void Programs::run(const QString &purpose, const QVector<QStringList> &commands)
{
    m_queues[purpose].waiting = commands;
    if (!m_queues[purpose].running)
        runNext(purpose);
}

void Programs::runNext(const QString &purpose)
{
    Queue &queue = m_queues[purpose];
    queue.running = nullptr;
    while (!queue.running && !queue.waiting.isEmpty()) {
        queue.running = launch(queue.waiting.takeFirst(), [this, purpose](bool failed) {
            if (failed) // what follows needs what failed
                m_queues[purpose].waiting.clear();
            runNext(purpose);
        });
        if (queue.running)
            QTimer::singleShot(hangMs, queue.running, &QProcess::kill);
        else if (!m_printOnly)
            queue.waiting.clear();
    }
    if (isIdle())
        emit idle();
}

QProcess *Programs::start(const QStringList &command, const std::function<void()> &whenEnded)
{
    return launch(command, [whenEnded](bool) { whenEnded(); });
}

void Programs::end(QProcess *process)
{
    process->setProperty("isAsked", true);
    process->terminate();
    QTimer::singleShot(endMs, process, &QProcess::kill);
}

bool Programs::isIdle() const
{
    return std::none_of(m_queues.cbegin(), m_queues.cend(), [](const Queue &queue) { return queue.running; });
}

QProcess *Programs::launch(const QStringList &command, const std::function<void(bool failed)> &whenEnded)
{
    if (m_printOnly) {
        std::printf("%s\n", shellLine(command).toLocal8Bit().constData());
        std::fflush(stdout);
        return nullptr;
    }
    const QString tool = QFileInfo(command.first()).fileName();
    const QString program = findProgram(command.first());
    if (program.isEmpty()) {
        complain(tool, QStringLiteral("%1 is not installed"));
        return nullptr;
    }
    if (m_verbose)
        tell(shellLine(command));
    auto *process = new Child(this);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    const auto finish = [this, process, tool, whenEnded](bool failed) {
        process->deleteLater();
        if (failed && !process->property("isAsked").toBool())
            complain(tool, QStringLiteral("%1 failed or took too long"));
        whenEnded(failed);
        emit ended();
    };
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [finish](int code, QProcess::ExitStatus status) {
                finish(code != 0 || status != QProcess::NormalExit);
            });
    connect(process, &QProcess::errorOccurred, this, [finish](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(true);
    });
    process->start(program, command.mid(1));
    return process;
}

void Programs::complain(const QString &tool, const QString &what)
{
    if (m_complained.contains(tool))
        return;
    m_complained.insert(tool);
    tell(what.arg(tool) + packageHint(tool));
}
