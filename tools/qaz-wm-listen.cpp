// Prints every window-manager command that arrives on the display, one a line: the reference receiver.

#include "platform/commandreceiver.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <memory>

#include <X11/Xlib.h>

namespace {

struct Options {
    int count;     // none: no end
    int timeoutMs; // none: no end
};

bool parseOptions(const QCoreApplication &application, Options *options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Prints the commands sent to the Qaz window manager, one a line."));
    parser.addHelpOption();
    const QCommandLineOption count(QStringLiteral("count"), QStringLiteral("End after N commands."),
                                   QStringLiteral("N"));
    const QCommandLineOption timeout(
        QStringLiteral("timeout"),
        QStringLiteral("End with status 1 when they did not come within MS milliseconds."),
        QStringLiteral("MS"));
    parser.addOptions({count, timeout});
    parser.process(application);
    *options = {parser.value(count).toInt(), parser.value(timeout).toInt()};
    const bool isValid = parser.isSet(count) == (options->count > 0)
                         && parser.isSet(timeout) == (options->timeoutMs > 0)
                         && parser.positionalArguments().isEmpty();
    if (!isValid)
        std::fputs(
            "qaz-wm-listen: --count and --timeout take a number above 0; there are no other arguments\n",
            stderr);
    return isValid;
}

/// \a command without what would drive a terminal: control characters other than the newline read \xNN.
QByteArray printable(const QByteArray &command)
{
    // On bytes: ASCII's; the first byte of one of UTF-8's; a following byte in their range that follows nothing.
    static const QRegularExpression control(
        QStringLiteral("[\\x00-\\x09\\x0B-\\x1F\\x7F]|\\xC2(?=[\\x80-\\x9F])|(?<![\\xC3-\\xFF])"
                       "(?<![\\xE0-\\xFF][\\x80-\\xBF])(?<![\\xF0-\\xFF][\\x80-\\xBF]{2})[\\x80-\\x9F]"));
    QString text = QString::fromLatin1(command);
    for (auto match = control.match(text); match.hasMatch(); match = control.match(text)) {
        const QByteArray code = match.captured().toLatin1().toHex().toUpper();
        text.replace(match.capturedStart(), match.capturedLength(),
                     QLatin1String("\\x") + QLatin1String(code));
    }
    return text.toLatin1();
}

void print(QByteArray command)
{
    if (command.endsWith('\n'))
        command.chop(1);
    std::puts(printable(command).constData());
    std::fflush(stdout);
}

int listen(Display *display, const Options &options)
{
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    CommandReceiver receiver(display);
    int printed = 0;
    const auto readEvents = [&] {
        while (XPending(display) > 0) {
            XEvent event;
            XNextEvent(display, &event);
            const QByteArray command = receiver.take(event);
            if (command.isNull())
                continue;
            print(command);
            if (++printed == options.count)
                return QCoreApplication::quit();
        }
    };
    QSocketNotifier notifier(ConnectionNumber(display), QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, readEvents);
    QTimer::singleShot(0, &notifier, readEvents); // also sends what is to be listened to
    if (options.timeoutMs)
        QTimer::singleShot(options.timeoutMs, &notifier,
                           [&options] { QCoreApplication::exit(options.count ? 1 : 0); });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Options options = {};
    if (!parseOptions(application, &options))
        return 2;
    const std::unique_ptr<Display, int (*)(Display *)> display(XOpenDisplay(nullptr), XCloseDisplay);
    if (!display) {
        std::fprintf(stderr, "qaz-wm-listen: Can't open display '%s'\n", XDisplayName(nullptr));
        return 2;
    }
    return listen(display.get(), options);
}
