// Prints every window-manager command that arrives on the display, one a line: the reference receiver.

#include "platform/commandreceiver.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

#include <X11/Xlib.h>
#include <poll.h>

namespace {

struct Options {
    int count = 0;      // 0: no end
    int timeoutMs = -1; // below 0: no end
};

/// A number from the command line; -1 when \a text is none.
int positiveNumber(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number > 0 ? number : -1;
}

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
    if (parser.isSet(count))
        options->count = positiveNumber(parser.value(count));
    if (parser.isSet(timeout))
        options->timeoutMs = positiveNumber(parser.value(timeout));
    const bool isValid = options->count >= 0 && (!parser.isSet(timeout) || options->timeoutMs > 0)
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
    QByteArray text;
    int following = 0; // bytes that a UTF-8 character still has
    for (int i = 0; i < command.size(); ++i) {
        const auto byte = uchar(command.at(i));
        const bool isSecond = following > 0 && (byte & 0xC0) == 0x80;
        const bool isC1 = byte == 0xC2 && i + 1 < command.size() && (uchar(command.at(i + 1)) & 0xE0) == 0x80;
        const bool isControl = (byte < 0x20 && byte != '\n') || byte == 0x7F || isC1
                               || ((byte & 0xE0) == 0x80 && !isSecond);
        following = isSecond              ? following - 1
                    : isC1 || byte < 0xC2 ? 0
                    : byte < 0xE0         ? 1
                    : byte < 0xF0         ? 2
                                          : 3;
        text += isControl ? "\\x" + QByteArray::number(byte, 16).rightJustified(2, '0').toUpper()
                          : command.mid(i, 1);
    }
    return text;
}

void print(QByteArray command)
{
    if (command.endsWith('\n'))
        command.chop(1);
    command = printable(command);
    std::fwrite(command.constData(), 1, std::size_t(command.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

/// Waits until the server has sent something. False when the time is up.
bool waitForEvent(Display *display, const QElapsedTimer &timer, int timeoutMs)
{
    pollfd connection = {ConnectionNumber(display), POLLIN, 0};
    while (XPending(display) == 0) {
        const qint64 left = timeoutMs < 0 ? -1 : timeoutMs - timer.elapsed();
        if (timeoutMs >= 0 && left <= 0)
            return false;
        poll(&connection, 1, int(left));
    }
    return true;
}

int listen(Display *display, const Options &options)
{
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    XSync(display, False);

    CommandReceiver receiver(display);
    QElapsedTimer timer;
    timer.start();
    for (int printed = 0; options.count == 0 || printed < options.count;) {
        if (!waitForEvent(display, timer, options.timeoutMs))
            return options.count == 0 ? 0 : 1;
        XEvent event;
        XNextEvent(display, &event);
        const QByteArray command = receiver.take(event);
        if (command.isNull())
            continue;
        print(command);
        ++printed;
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Options options;
    if (!parseOptions(application, &options))
        return 2;
    Display *display = XOpenDisplay(nullptr);
    if (!display) {
        std::fprintf(stderr, "qaz-wm-listen: Can't open display '%s'\n", XDisplayName(nullptr));
        return 2;
    }
    const int status = listen(display, options);
    XCloseDisplay(display);
    return status;
}
