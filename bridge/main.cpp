// Carries out on an ordinary X11 session what the theme editor announces to the window manager.

#include "bridge/bridge.h"
#include "bridge/programs.h"
#include "bridge/xconnection.h"
#include "settings/directories.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int wrongOption = 2;

struct Switch {
    const char *name;
    const char *help;
    bool Options::*value;
};

constexpr Switch switches[] = {
    {"once", "Apply everything and end; nothing that would have to stay is started.", &Options::once},
    {"dry-run", "Print each command line instead of running it; write nothing.", &Options::dryRun},
    {"verbose", "Tell what is run and which commands are not for this program.", &Options::verbose},
    {"replace", "Take over from a bridge that runs on this screen.", &Options::replace},
    {"openbox", "Tell Openbox's rc.xml, after a backup, to use the theme and its fonts.", &Options::openbox},
};

/// False, with one line in \a error, when the arguments are wrong.
bool readOptions(Options *options, QString *error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Carries out on an ordinary X11 session what the theme editor announces to the window manager."));
    for (const Switch &known : switches)
        parser.addOption({QString::fromLatin1(known.name), QString::fromLatin1(known.help)});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("themefile"),
                                 QStringLiteral("The theme file to follow (default: the user's)."),
                                 QStringLiteral("[themefile]"));
    if (!parser.parse(QCoreApplication::arguments())) {
        *error = parser.errorText();
        return false;
    }
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        *error = QStringLiteral("There is one theme file at most, not '%1'").arg(files.at(1));
    else if (!files.isEmpty() && !QFileInfo(files.first()).isFile())
        *error = QStringLiteral("There is no theme file '%1'").arg(files.first());
    for (const Switch &known : switches)
        options->*known.value = parser.isSet(QString::fromLatin1(known.name));
    options->themeFile = files.isEmpty() ? defaultThemeFile() : QFileInfo(files.first()).absoluteFilePath();
    return error->isEmpty();
}

int signalPipe[2] = {-1, -1};

/// Next to nothing is safe in a signal handler: it wakes the event loop.
void noteSignal(int number)
{
    const int before = errno;
    const char byte = char(number);
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = before;
}

/// Signals wait for heedSignals() from now on: ended while it starts a program, the bridge would leave a child for ever.
void catchSignals()
{
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, noteSignal);
}

void heedSignals(Bridge *bridge)
{
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, bridge);
    QObject::connect(notifier, &QSocketNotifier::activated, bridge, [bridge] {
        for (char number{}; ::read(signalPipe[0], &number, 1) == 1;)
            number == SIGHUP ? bridge->applyAnew() : bridge->endSession();
    });
}

/// The exit status when the screen is not to be served.
std::optional<int> refusal(XConnection *x, const Options &options)
{
    const auto refused = [](int status, const QString &reason) {
        tell(reason);
        return std::optional(status);
    };
    if (!x->isOpen())
        return refused(1, QStringLiteral("Can't open the display"));
    x->watchSelection("_QAZWM_S"); // before looking, so that no owner comes in between
    if (x->isOwned("_QAZWM_S"))
        return refused(0, QStringLiteral("A Qaz window manager runs here and follows the theme file itself"));
    if (!options.once && !options.dryRun && !x->claimSelection("_QAZWM_BRIDGE_S", options.replace))
        return refused(1, QStringLiteral("Another bridge serves this screen already; --replace takes over"));
    return {};
}

int serve(const Options &options)
{
    catchSignals();
    XConnection x;
    if (const std::optional<int> status = refusal(&x, options))
        return *status;
    // Queued: it may be lost before there is an event loop to leave.
    const auto giveUp = [] {
        tell(QStringLiteral("The X server is gone"));
        QCoreApplication::exit(1);
    };
    QObject::connect(&x, &XConnection::serverLost, QCoreApplication::instance(), giveUp,
                     Qt::QueuedConnection);
    Values values(options.themeFile);
    Programs programs(options);
    Bridge bridge({x, values, programs, options});
    heedSignals(&bridge);
    return options.once && programs.isIdle() ? 0 : QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(QAZ_VERSION));
    Options options;
    QString error;
    if (readOptions(&options, &error))
        return serve(options);
    tell(error);
    return wrongOption;
}
