#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"
#include "tests/tools/toolrun.h"

namespace {

const QByteArray svg
    = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 2'><path fill='#f00' d='M0 0h2v2h-2z'/></svg>";

const QString svg2png = "qaz-svg2png"_s;

} // namespace

class TestSvg2Png : public QObject
{
    Q_OBJECT
private slots:
    void imageIsRendered()
    {
        const TemporaryHome home;
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
        const ToolRun help = run("--help", svg2png);
        QVERIFY(help.status == 0 && help.out.startsWith("Usage: qaz-svg2png") && help.errors.isEmpty());
    }

    void textIsRenderedWithoutADisplay()
    {
        const TemporaryHome home;
        const auto inkOf = [&home](const QByteArray &text) {
            home.write("a.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
                                  "<text y='80' font-size='90'>"
                                      + text + "</text></svg>");
            run("-w 100 -h 100 -i a.svg -o a.png", svg2png);
            const QImage image = QImage(home.path("a.png"_s)).convertToFormat(QImage::Format_Grayscale8);
            return std::count_if(image.constBits(), image.constBits() + image.sizeInBytes(),
                                 [](uchar gray) { return gray < 128; });
        };
        // Boxes in place of letters would all be the same.
        const auto dot = inkOf(".");
        QVERIFY(dot > 20);
        QVERIFY(inkOf("W") > 3 * dot);
    }

    void failuresAreToldAndChangeNothing()
    {
        const TemporaryHome home;
        home.write("a.svg"_s, svg);
        home.write("cut.svg"_s, svg.chopped(10));
        home.write("old.png"_s, "old");
        QVERIFY(home.makeDirectory("directory"_s));
        home.makeFifo("fifo"_s);
        const QString before = home.fingerprint();
        const std::pair<const char *, int> rows[] = {
            {"-w 1 -h 1 -i missing.svg -o old.png", 1},  {"-w 1 -h 1 -i cut.svg -o old.png", 1},
            {"-w 1 -h 1 -i fifo -o old.png", 1},         {"-w 1 -h 1 -i a.svg -o directory", 1},
            {"-w 1 -h 1 -i a.svg -o a.svg/b.png", 1},    {"-w 1 -h 1 -i a.svg -o", 2},
            {"-w 1 -h 1 -x 1 -i a.svg -o old.png", 2},   {"-w 0 -h 1 -i a.svg -o old.png", 2},
            {"-w 32767 -h 32767 -i a.svg -o old.png", 2}};
        for (const auto &[arguments, expected] : rows) {
            const ToolRun result = run(arguments, svg2png);
            QVERIFY2(result.status == expected && result.errors.contains("qaz-svg2png"), arguments);
            QCOMPARE(home.fingerprint(), before);
        }
    }

private:
    const ScopedEnvironment m_display{"DISPLAY", {}};
};

QTEST_GUILESS_MAIN(TestSvg2Png)
#include "tst_svg2png.moc"
