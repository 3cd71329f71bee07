#include "platform/sendcommandtowm.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"
#include "tests/tools/toolrun.h"

#include <X11/Xlib.h>

namespace {

const QByteArray svg
    = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 2'><path fill='#f00' d='M0 0h2v2h-2z'/></svg>";

const QString svg2png = "qaz-svg2png"_s, listen = "qaz-wm-listen"_s, renderIcons = "render-icons"_s;

} // namespace

/// qaz-svg2png, qaz-wm-listen and render-icons.
class TestSmallTools : public QObject
{
    Q_OBJECT
private slots:
    void imageIsRendered()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        const QStringList rows[] = {{"a.svg"_s, "b.jpg"_s, "jpeg"_s},
                                    {"a"_s, "b"_s, "png"_s},
                                    {"-h $(touch x) \"'\n.svg"_s, "--help;.png"_s, "png"_s}};
        for (const QStringList &row : rows) {
            home.write(row[0], svg);
            const ToolRun result(svg2png, {"-w"_s, "40"_s, "-h"_s, "30"_s, "-i"_s, row[0], "-o"_s, row[1]});
            QVERIFY2(result.status == 0, result.errors.constData());
            QCOMPARE(QString::fromLatin1(QImageReader::imageFormat(home.path(row[1]))), row[2]);
            const QImage image(home.path(row[1]));
            QCOMPARE(image.size(), QSize(40, 30));
            QVERIFY(qRed(image.pixel(5, 15)) > 250 && qGreen(image.pixel(5, 15)) < 5);
            QCOMPARE(image.pixelColor(35, 15), QColor(Qt::white));
        }
        QVERIFY(QImage(home.path("b"_s)).save(home.path("c.jpg"_s), nullptr, 90));
        QCOMPARE(home.read("b.jpg"_s), home.read("c.jpg"_s));
        QCOMPARE(ToolRun(svg2png, "-w 32767 -h 1 -i a.svg -o b"_s.split(u' ')).status, 0);
    }

    void textIsRenderedWithoutADisplay()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        const auto inkOf = [&home](const QByteArray &text) {
            home.write("a.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
                                  "<text y='80' font-size='90'>"
                                      + text + "</text></svg>");
            ToolRun(svg2png, "-w 100 -h 100 -i a.svg -o a.png"_s.split(u' '));
            const QImage image = QImage(home.path("a.png"_s)).convertToFormat(QImage::Format_Grayscale8);
            return std::count_if(image.constBits(), image.constBits() + image.sizeInBytes(),
                                 [](uchar gray) { return gray < 128; });
        };
        // Boxes in place of letters would all be the same.
        const auto dot = inkOf(".");
        QVERIFY(dot > 20);
        QVERIFY(inkOf("W") > 3 * dot);
    }

    void iconsAreDrawn()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        home.write("a.b.svg"_s, svg);
        QCOMPARE(ToolRun(renderIcons, "4 new/x a.b.svg a.b.svg"_s.split(u' ')).status, 0);
        QImage expected(4, 4, QImage::Format_ARGB32);
        expected.fill(Qt::transparent);
        for (int y = 0; y < 4; ++y)
            expected.setPixel(0, y, 0xffff0000), expected.setPixel(1, y, 0xffff0000);
        QCOMPARE(QImage(home.path("new/x/a.b.png"_s)).convertToFormat(expected.format()), expected);
        QCOMPARE(home.names("new/x"_s), "a.b.png"_s);
    }

    void whatIsWrongIsToldAndChangesNothing() { replay("tools/smalltools.txt"_s); }

    void theListenerPrintsWhatDrivesNoTerminal()
    {
        const std::unique_ptr<Display, int (*)(Display *)> display(XOpenDisplay(nullptr), XCloseDisplay);
        QProcess listener;
        listener.start(QStringLiteral(QAZ_BINARY_DIR "/bin/") + listen, {"--count"_s, "2"_s});
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
