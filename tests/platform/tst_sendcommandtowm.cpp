#include "platform/commandreceiver.h"
#include "platform/sendcommandtowm.h"
#include "tests/support/standarderror.h"
#include "tests/support/testing.h"
#include "tests/support/wmlistener.h"

#include <QX11Info>

#include <X11/Xlib.h>

class TestSendCommandToWm : public QObject
{
    Q_OBJECT
private slots:
    void everyTextArrivesWhole()
    {
        WmListener listener;
        // At 19 bytes the final NUL still fits the first message, at 20 it goes alone.
        for (const QByteArray &text :
             {QByteArray(""), QByteArray("QAZWM_RESTART"), QByteArray(18, 'a'), QByteArray(19, 'b'),
              QByteArray("a\nb"), QByteArray("K Größe %s"), QByteArray(65535, 'x')}) {
            SendCommandToWM(QX11Info::display(), (text + '\n').constData());
            QCOMPARE(listener.take(), QStringList{QString::fromLocal8Bit(text)});
        }
        StandardError errors;
        SendCommandToWM(QX11Info::display(), QByteArray(65537, 'x').constData());
        for (int i = 0; i < 2; ++i) // which is told once
            SendCommandToWM(nullptr, "QAZWM_RESTART\n");
        QCOMPARE(errors.take(),
                 QByteArray(
                     "qaz-admin-theme: A window-manager command of 65537 bytes is too long and was not sent\n"
                     "qaz-admin-theme: No X display: the window manager is not told of changes\n"));
        QCOMPARE(listener.take(), QStringList());
    }

    void messagesHaveTheFixedForm()
    {
        const std::unique_ptr<Display, int (*)(Display *)> receiver(XOpenDisplay(nullptr), XCloseDisplay);
        XSelectInput(receiver.get(), DefaultRootWindow(receiver.get()), SubstructureNotifyMask);
        XSync(receiver.get(), False);
        SendCommandToWM(QX11Info::display(), "0123456789012345678901234\n\0x");
        SendCommandToWM(QX11Info::display(), "012345678901234567\n"); // a whole message with its NUL
        XSync(QX11Info::display(), False);
        XSync(receiver.get(), False);

        CommandReceiver commands(receiver.get());
        const Atom begin = XInternAtom(receiver.get(), "_QAZWM_COMMAND_BEGIN", True);
        QByteArray messages, received;
        for (XEvent event; XCheckTypedEvent(receiver.get(), ClientMessage, &event);) {
            XWindowAttributes sender = {};
            QVERIFY(XGetWindowAttributes(receiver.get(), event.xclient.window, &sender));
            QCOMPARE(sender.map_state, IsUnmapped);
            QCOMPARE(QRect(sender.x, sender.y, sender.width, sender.height), QRect(-10, -10, 1, 1));
            QCOMPARE(event.xclient.format, 8);
            const bool begins = event.xclient.message_type == begin;
            QVERIFY(begins
                    || event.xclient.message_type == XInternAtom(receiver.get(), "_QAZWM_COMMAND", True));
            messages += (begins ? "begin " : "next ")
                        + QByteArray(event.xclient.data.b, 20).replace('\0', '0');
            for (const auto &[type, format] :
                 {std::pair(ClientMessage, 32), {PropertyNotify, 8}, {ClientMessage, 8}}) {
                event.type = type;
                event.xclient.format = format;
                received += commands.take(event) + '|';
            }
        }
        QCOMPARE(messages, QByteArray("begin 01234567890123456789next 01234\n00000000000000"
                                      "begin 012345678901234567\n0"));
        QCOMPARE(received, QByteArray("|||||0123456789012345678901234\n|||012345678901234567\n|"));
    }

    void interleavedSendersAreKeptApart()
    {
        constexpr char full[] = "aaaaaaaaaaaaaaaaaaaa", other[] = "bbbbbbbbbbbbbbbbbbbb", last[20] = "end";
        CommandReceiver receiver;
        for (std::uint64_t sender = 0; sender < 65; ++sender)
            QVERIFY(receiver.take(sender, true, full).isNull());
        QVERIFY(receiver.take(64, true, other).isNull()); // anew
        QByteArrayList finished;
        for (const std::uint64_t sender :
             {64, 1, 0, 1}) // of too many the oldest went; a last one without a first one
            finished += receiver.take(sender, false, last);
        QCOMPARE(finished.join('|'), other + QByteArray("end|") + full + "end||");
        for (int bytes = 0; bytes <= longestCommand; bytes += 20)
            QVERIFY(receiver.take(3, bytes == 0, full).isNull());
        QVERIFY2(receiver.take(3, false, last).isNull(), "too long a command is dropped");
    }
};

QTEST_MAIN(TestSendCommandToWm)
#include "tst_sendcommandtowm.moc"
