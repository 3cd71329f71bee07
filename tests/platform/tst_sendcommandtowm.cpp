#include "platform/commandreceiver.h"
#include "platform/sendcommandtowm.h"
#include "tests/support/testing.h"
#include "tests/support/wmlistener.h"

#include <QX11Info>

#include <X11/Xlib.h>

static constexpr char full[] = "aaaaaaaaaaaaaaaaaaaa"; // one message

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
        SendCommandToWM(QX11Info::display(), QByteArray(65537, 'x').constData());
        SendCommandToWM(nullptr, "QAZWM_RESTART\n");
        QCOMPARE(listener.take(), QStringList());
    }

    void messagesHaveTheFixedForm()
    {
        Display *receiver = XOpenDisplay(nullptr);
        QVERIFY(receiver);
        XSelectInput(receiver, DefaultRootWindow(receiver), SubstructureNotifyMask);
        XSync(receiver, False);
        SendCommandToWM(QX11Info::display(), "0123456789012345678901234\n");
        XSync(QX11Info::display(), False);
        XSync(receiver, False);

        using Message = std::tuple<Atom, int, int, QByteArray>;
        QVector<Message> messages; // type, format, whether the window is shown, bytes
        while (XPending(receiver) > 0) {
            XEvent event;
            XNextEvent(receiver, &event);
            if (event.type != ClientMessage)
                continue;
            XWindowAttributes attributes = {};
            QVERIFY(XGetWindowAttributes(receiver, event.xclient.window, &attributes));
            messages.append({event.xclient.message_type, event.xclient.format, attributes.map_state,
                             QByteArray(event.xclient.data.b, 20)});
        }
        QCOMPARE(messages, (QVector<Message>{{XInternAtom(receiver, "_QAZWM_COMMAND_BEGIN", True), 8,
                                              IsUnmapped, "01234567890123456789"},
                                             {XInternAtom(receiver, "_QAZWM_COMMAND", True), 8, IsUnmapped,
                                              QByteArray("01234\n").leftJustified(20, '\0')}}));
        XCloseDisplay(receiver);
    }

    void interleavedSendersAreKeptApart()
    {
        CommandReceiver receiver;
        const auto begin = [&](std::uint64_t sender) { return receiver.take(sender, true, full); };
        const auto finish = [&](std::uint64_t sender) {
            return receiver.take(sender, false, "end\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0");
        };
        for (std::uint64_t sender = 0; sender < 65; ++sender)
            QVERIFY(begin(sender).isNull());
        for (const std::uint64_t sender : {64, 1})
            QCOMPARE(finish(sender), full + QByteArray("end"));
        QVERIFY2(finish(0).isNull(), "the oldest of too many went");
        QVERIFY2(finish(1).isNull(), "a following message without a first one");
        for (int bytes = 0; bytes <= longestCommand; bytes += 20)
            QVERIFY(receiver.take(3, bytes == 0, full).isNull());
        QVERIFY2(finish(3).isNull(), "too long a command is dropped");
    }
};

QTEST_MAIN(TestSendCommandToWm)
#include "tst_sendcommandtowm.moc"
