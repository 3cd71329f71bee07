#include "platform/sendcommandtowm.h"
#include "tests/tools/toolrun.h"

#include <X11/Xlib.h>

/// The programs of the command line.
class TestTools : public QObject
{
    Q_OBJECT
private slots:
    void sessionsGoAsWritten_data()
    {
        QTest::addColumn<QString>("session");
        for (const char *name : {"qaz-theme", "keys", "nodisplay", "package", "foes", "smalltools"})
            QTest::newRow(name) << "tools/%1.txt"_s.arg(QLatin1String(name));
    }

    void sessionsGoAsWritten()
    {
        QFETCH(QString, session);
        replay(session);
    }

    void iconsAreDrawn()
    {
        const TemporaryHome home;
        home.write("a.b.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 2'>"
                                "<path fill='#f00' d='M0 0h2v2h-2z'/></svg>");
        QCOMPARE(answerTo("DISPLAY= render-icons 4 new/x a.b.svg a.b.svg; ls new/x"_s, home), "a.b.png\n"_s);
        QImage expected(4, 4, QImage::Format_ARGB32);
        for (int i = 0; i < 16; ++i)
            expected.setPixel(i % 4, i / 4, i % 4 < 2 ? 0xffff0000 : 0);
        QCOMPARE(QImage(home.path("new/x/a.b.png"_s)).convertToFormat(expected.format()), expected);
    }

    void theListenerPrintsWhatDrivesNoTerminal()
    {
        const std::unique_ptr<Display, int (*)(Display *)> display(XOpenDisplay(nullptr), XCloseDisplay);
        QProcess listener;
        listener.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-wm-listen"), {"--count"_s, "2"_s});
        XWindowAttributes root = {};
        QTRY_VERIFY(XGetWindowAttributes(display.get(), DefaultRootWindow(display.get()), &root)
                    && root.all_event_masks & SubstructureNotifyMask);
        SendCommandToWM(display.get(), "a\x1b]0;x\a\tb\n\x7f\xc2\x9b\x9b"
                                       "c \xc3\xb6\xe2\x82\x9b\x9b\xf0\x9f\x82\x80\x80\n\n");
        QTRY_VERIFY(listener.canReadLine());
        SendCommandToWM(display.get(), "2");
        SendCommandToWM(display.get(), "3");
        QVERIFY(listener.waitForFinished());
        QCOMPARE(listener.readAllStandardOutput(), "a\\x1B]0;x\\x07\\x09b\n\\x7F\\xC2\\x9B\\x9Bc "
                                                   "\xc3\xb6\xe2\x82\x9b\\x9B\xf0\x9f\x82\x80\\x80\n\n2\n");
        QCOMPARE(listener.exitCode(), 0);
    }
};

QTEST_GUILESS_MAIN(TestTools)
#include "tst_tools.moc"
