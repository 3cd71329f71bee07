#include "platform/sendcommandtowm.h"
#include "tests/tools/toolrun.h"

#include <X11/Xlib.h>

static const QByteArray svg
    = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 2'><path fill='#f00' d='M0 0h2v2h-2z'/></svg>";

/// qaz-svg2png, qaz-wm-listen and render-icons.
class TestSmallTools : public QObject
{
    Q_OBJECT
private slots:
    void imageIsRendered()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        const auto rendered = [&home](const QString &in, const QByteArray &content, const QString &out) {
            home.write(in, content);
            const ToolRun run("qaz-svg2png"_s, {"-w"_s, "40"_s, "-h"_s, "30"_s, "-i"_s, in, "-o"_s, out});
            return run.status == 0 ? QImage(home.path(out)) : QImage();
        };
        for (const auto &[in, out, format] : {std::tuple("a.svg"_s, "b.jpg"_s, "jpeg"),
                                              {"a"_s, "b"_s, "png"},
                                              {"-h $(touch x) \"'\n.svg"_s, "--help;.png"_s, "png"}}) {
            const QImage image = rendered(in, svg, out);
            QCOMPARE(image.size(), QSize(40, 30));
            QCOMPARE(QImageReader::imageFormat(home.path(out)), QByteArray(format));
            QVERIFY(qRed(image.pixel(5, 15)) > 250 && qGreen(image.pixel(5, 15)) < 5);
            QCOMPARE(image.pixelColor(35, 15), QColor(Qt::white));
        }
        QVERIFY(QImage(home.path("b"_s)).save(home.path("c.jpg"_s), nullptr, 90));
        QCOMPARE(home.read("b.jpg"_s), home.read("c.jpg"_s));
        QCOMPARE(ToolRun("qaz-svg2png"_s, "-w 32767 -h 1 -i a.svg -o b"_s.split(u' ')).status, 0);

        const auto inkOf = [&rendered](const QByteArray &text) {
            const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 30'>"
                                       "<text y='28' font-size='30'>"
                                       + text + "</text></svg>";
            const QImage image = rendered("t.svg"_s, drawing, "t.png"_s)
                                     .convertToFormat(QImage::Format_Grayscale8);
            return std::count_if(image.constBits(), image.constBits() + image.sizeInBytes(),
                                 [](uchar gray) { return gray < 128; });
        };
        const auto dot = inkOf("."); // boxes in place of letters would all be the same
        QVERIFY(dot > 0);
        QVERIFY(inkOf("W") > 3 * dot);
    }

    void iconsAreDrawn()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        home.write("a.b.svg"_s, svg);
        const ToolRun run("render-icons"_s, "4 new/x a.b.svg a.b.svg"_s.split(u' '));
        QVERIFY2(run.status == 0 && run.errors.isEmpty(), run.errors.constData());
        QImage expected(4, 4, QImage::Format_ARGB32);
        for (int i = 0; i < 16; ++i)
            expected.setPixel(i % 4, i / 4, i % 4 < 2 ? 0xffff0000 : 0);
        QCOMPARE(QImage(home.path("new/x/a.b.png"_s)).convertToFormat(expected.format()), expected);
        QCOMPARE(home.names("new/x"_s), "a.b.png"_s);
    }

    void whatIsWrongIsToldAndChangesNothing() { replay("tools/smalltools.txt"_s); }

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

QTEST_GUILESS_MAIN(TestSmallTools)
#include "tst_smalltools.moc"
