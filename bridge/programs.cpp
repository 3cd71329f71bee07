#include "bridge/programs.h"

#include "base/diagnostics.h"
#include "bridge/session.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <utility>

#include <sys/prctl.h>

namespace {

constexpr int hangMs = 10000;
constexpr int endMs = 2000;

constexpr std::pair<const char *, const char *> packages[] // of the tools
    = {{"aplay", "alsa-utils"},       {"feh", "feh"},
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

Programs::Programs(const Options &options)
    : m_options(options)
{}

Programs::~Programs()
{
    const auto children = findChildren<QProcess *>();
    for (QProcess *process : children) {
        process->disconnect(this);
        process->terminate();
    }
    for (QProcess *process : children)
        process->waitForFinished(endMs); // Qt kills what goes on
}

void Programs::run(const QVector<QStringList> &commands)
{
    const QString name = commands.constLast().constFirst();
    m_queues[name].waiting = commands;
    if (!m_queues[name].running)
        runNext(name);
}

void Programs::runNext(const QString &queueName)
{
    Queue &queue = m_queues[queueName];
    queue.running = nullptr;
    while (!queue.running && !queue.waiting.isEmpty()) {
        queue.running = start(queue.waiting.takeFirst(), [this, queueName](bool failed) {
            if (failed) // what follows needs what failed
                m_queues[queueName].waiting.clear();
            runNext(queueName);
        });
        if (queue.running)
            QTimer::singleShot(hangMs, queue.running, &QProcess::kill);
        else if (!m_options.dryRun)
            queue.waiting.clear();
    }
    if (isIdle())
        emit idle();
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

QProcess *Programs::start(const QStringList &command, const std::function<void(bool failed)> &whenEnded)
{
    if (m_options.dryRun) {
        std::printf("%s\n", shellLine(command).toLocal8Bit().constData());
        std::fflush(stdout);
        return nullptr;
    }
    const QString tool = QFileInfo(command.first()).fileName();
    QString program = QStandardPaths::findExecutable(command.first());
    if (program.isEmpty())
        program = QStandardPaths::findExecutable(command.first(), {QCoreApplication::applicationDirPath()});
    if (program.isEmpty()) {
        complain(tool, QStringLiteral("%1 is not installed"));
        return nullptr;
    }
    if (m_options.verbose)
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
    QString line = what.arg(tool);
    for (const auto &[name, package] : packages) { // a compositing manager may be of any
        if (tool == QLatin1String(name))
            line += QStringLiteral(" (Debian package %1)").arg(QLatin1String(package));
    }
    tell(line);
}
