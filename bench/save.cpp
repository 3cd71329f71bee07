#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QX11Info>

#include "bench/editor.h"
#include "bench/figures.h"
#include "platform/sendcommandtowm.h"

#include <unistd.h>

namespace {

constexpr int rounds = 15;
constexpr char changedPhase[] = "/qaz-bench-changed";
constexpr char unchangedPhase[] = "/qaz-bench-unchanged";
constexpr char endPhase[] = "/qaz-bench-end";

/// Tells both strace's record and the window manager that a phase begins.
void beginPhase(const char *name)
{
    [[maybe_unused]] const int missing = ::access(name, F_OK);
    SendCommandToWM(QX11Info::display(), name);
}

double applyTime(Editor &editor)
{
    QElapsedTimer timer;
    timer.start();
    editor.apply();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// The editor's side: applies one changed value, then none, \a count times; prints the median times.
int applyRepeatedly(int count)
{
    Editor editor;
    editor.setDelay(19);
    editor.apply(); // what loading made of an empty home is out of the way now
    std::vector<double> changed;
    std::vector<double> unchanged;
    for (int round = 0; round < count; ++round) {
        editor.setDelay(20 + round);
        beginPhase(changedPhase);
        changed.push_back(applyTime(editor));
        editor.setDelay(0);
        editor.setDelay(20 + round);
        beginPhase(unchangedPhase);
        unchanged.push_back(applyTime(editor));
        beginPhase(endPhase);
    }
    std::printf("Apply, one value changed  %8.2f ms\n", median(changed));
    std::printf("Apply, nothing changed    %8.2f ms\n", median(unchanged));
    return 0;
}

/// What strace saw in one phase.
struct Writes {
    int replacements = 0; // files put in place
    int others = 0; // everything else that changes a file or directory, but for temporary ones and locks
};

Writes writesIn(const QString &record, const char *begin, const char *end)
{
    static const QRegularExpression replaces(QStringLiteral("^\\d+ +rename"));
    static const QRegularExpression writes(QStringLiteral(
        "^\\d+ +(?:open.*O_(?:WRONLY|RDWR|CREAT)|creat|mkdir|unlink|rmdir|link|symlink|truncate|chmod|"
        "fchmodat|chown|utime)"));
    static const QRegularExpression passing(
        QStringLiteral("\"(?:/dev/[^\"]*|[^\"]*/\\.qaz-\\w{6}|[^\"]*\\.lock|%1/[^\"]*)\"[^\"]*$|O_TMPFILE")
            .arg(QRegularExpression::escape(QDir::tempPath())));
    const int from = record.indexOf(QLatin1String(begin));
    Writes seen;
    for (const QString &line :
         record.mid(from, record.indexOf(QLatin1String(end), from) - from).split(QLatin1Char('\n'))) {
        if (line.contains(passing))
            continue;
        if (line.contains(replaces))
            ++seen.replacements;
        else if (line.contains(writes))
            ++seen.others;
    }
    return seen;
}

QString traced(const QString &self)
{
    QTemporaryFile record;
    if (!record.open())
        return {};
    QProcess::execute(QStringLiteral("strace"),
                      {QStringLiteral("-f"), QStringLiteral("-e"), QStringLiteral("trace=%file"),
                       QStringLiteral("-o"), record.fileName(), self, QStringLiteral("1")});
    return QString::fromLocal8Bit(record.readAll());
}

/// Counts the commands that arrive at a window manager until \a end does; -1 if it never does.
int commandsUntil(QProcess &listener, const char *end)
{
    int heard = 0;
    while (listener.canReadLine() || listener.waitForReadyRead(10000)) {
        while (listener.canReadLine()) {
            if (listener.readLine().trimmed() == end)
                return heard;
            ++heard;
        }
    }
    return -1;
}

} // namespace

/// Counts what Apply writes and sends, and measures it. With a number: the editor's side of that.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 2)
        return applyRepeatedly(QByteArray(argv[1]).toInt());

    QProcess listener;
    listener.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-wm-listen"), QStringList());
    listener.waitForStarted();
    const QString self = QCoreApplication::applicationFilePath();
    const QString record = traced(self);
    const Writes changed = writesIn(record, changedPhase, unchangedPhase);
    const Writes unchanged = writesIn(record, unchangedPhase, endPhase);
    commandsUntil(listener, changedPhase);
    const int commands = commandsUntil(listener, unchangedPhase);
    const int idleCommands = commandsUntil(listener, endPhase);
    std::printf("one value changed: %d replaced, %d other writes, %d commands\n", changed.replacements,
                changed.others, commands);
    std::printf("nothing changed:   %d replaced, %d other writes, %d commands\n", unchanged.replacements,
                unchanged.others, idleCommands);
    std::fflush(stdout);
    QProcess::execute(self, {QString::number(rounds)});
    listener.kill();
    listener.waitForFinished();
    return changed.replacements == 1 && commands == 1 && idleCommands == 0
                   && unchanged.replacements + unchanged.others == 0
               ? 0
               : 1;
}
