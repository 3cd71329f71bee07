#include "tests/support/environment.h"
#include "tests/support/temporaryhome.h"

#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>

namespace {

const QByteArray svg
    = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 2'><path fill='#f00' d='M0 0h2v2h-2z'/></svg>";

struct Result {
    int status;
    QByteArray diagnostics;
};

Result run(const QStringList &arguments, const QString &directory)
{
    const ScopedEnvironment display("DISPLAY", {});
    QProcess process;
    process.setWorkingDirectory(directory);
    process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-svg2png"), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.errorString().toLocal8Bit()};
    return {process.exitCode(), process.readAllStandardError()};
}

QStringList rendering(const QString &in, const QString &out, int width = 40, int height = 30)
{
    return {QStringLiteral("-w"), QString::number(width),
            QStringLiteral("-h"), QString::number(height),
            QStringLiteral("-i"), in,
            QStringLiteral("-o"), out};
}

} // namespace

class TestSvg2Png : public QObject
{
    Q_OBJECT
private slots:
    void imageIsRendered_data();
    void imageIsRendered();
    void textIsRenderedWithoutADisplay();
    void failuresAreToldAndLeaveTheFile_data();
    void failuresAreToldAndLeaveTheFile();
    void wrongUsageIsTold_data();
    void wrongUsageIsTold();
};

void TestSvg2Png::imageIsRendered_data()
{
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QByteArray>("format");

    QTest::newRow("png") << QStringLiteral("a.svg") << QStringLiteral("b.png") << QByteArray("png");
    QTest::newRow("jpeg") << QStringLiteral("a.svg") << QStringLiteral("b.jpg") << QByteArray("jpeg");
    QTest::newRow("no ending") << QStringLiteral("a") << QStringLiteral("b") << QByteArray("png");
    QTest::newRow("options and shell signs as names")
        << QStringLiteral("-h $(touch x) \"'\n.svg") << QStringLiteral("--help;.png") << QByteArray("png");
}

void TestSvg2Png::imageIsRendered()
{
    QFETCH(QString, in);
    QFETCH(QString, out);
    const TemporaryHome home;
    home.write(in, svg);
    const Result result = run(rendering(in, out), home.path());
    QVERIFY2(result.status == 0, result.diagnostics.constData());
    QTEST(QImageReader::imageFormat(home.path(out)), "format");
    const QImage image(home.path(out));
    QCOMPARE(image.size(), QSize(40, 30));
    QVERIFY(qRed(image.pixel(5, 15)) > 250 && qGreen(image.pixel(5, 15)) < 5);
    QCOMPARE(image.pixelColor(35, 15), QColor(Qt::white));
    QVERIFY(!home.exists(QStringLiteral("x")));
}

void TestSvg2Png::textIsRenderedWithoutADisplay()
{
    const TemporaryHome home;
    const auto inkOf = [&home](const QByteArray &text) {
        home.write(QStringLiteral("a.svg"), "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
                                            "<text y='80' font-size='90'>"
                                                + text + "</text></svg>");
        run(rendering(QStringLiteral("a.svg"), QStringLiteral("a.png"), 100, 100), home.path());
        const QImage image = QImage(home.path(QStringLiteral("a.png")))
                                 .convertToFormat(QImage::Format_Grayscale8);
        return std::count_if(image.constBits(), image.constBits() + image.sizeInBytes(),
                             [](uchar gray) { return gray < 128; });
    };
    // Boxes in place of letters would all be the same.
    const auto dot = inkOf(".");
    QVERIFY(dot > 20);
    QVERIFY(inkOf("W") > 3 * dot);
}

void TestSvg2Png::failuresAreToldAndLeaveTheFile_data()
{
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("out");
    const char *rows[][3] = {
        {"no such file", "missing.svg", "old.png"}, {"no SVG", "old.png", "old.png"},
        {"cut off", "cut.svg", "old.png"},          {"directory as source", ".", "old.png"},
        {"FIFO as source", "fifo", "old.png"},      {"directory as target", "a.svg", "directory"},
        {"below a file", "a.svg", "a.svg/b.png"}};
    for (const auto &row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[1]) << QString::fromLatin1(row[2]);
}

void TestSvg2Png::failuresAreToldAndLeaveTheFile()
{
    QFETCH(QString, in);
    QFETCH(QString, out);
    const TemporaryHome home;
    home.write(QStringLiteral("a.svg"), svg);
    home.write(QStringLiteral("cut.svg"), svg.left(svg.size() - 10));
    home.write(QStringLiteral("old.png"), "old");
    QVERIFY(home.makeDirectory(QStringLiteral("directory")));
    QCOMPARE(::mkfifo(QFile::encodeName(home.path(QStringLiteral("fifo"))).constData(), 0600), 0);
    const QString before = home.fingerprint();
    const Result result = run(rendering(in, out), home.path());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.diagnostics.contains("qaz-svg2png: Can't "), result.diagnostics.constData());
    QCOMPARE(home.fingerprint(), before);
}

void TestSvg2Png::wrongUsageIsTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString in = QStringLiteral("a.svg");
    const QString out = QStringLiteral("a.png");
    QTest::newRow("none") << QStringList();
    QTest::newRow("no value") << QStringList(rendering(in, out).mid(0, 7));
    QTest::newRow("unknown option") << rendering(in, out)
                                           + QStringList{QStringLiteral("-x"), QStringLiteral("1")};
    QTest::newRow("no width") << rendering(in, out, 0, 10);
    QTest::newRow("negative height") << rendering(in, out, 10, -1);
    QTest::newRow("too large") << rendering(in, out, 32767, 32767);
}

void TestSvg2Png::wrongUsageIsTold()
{
    QFETCH(QStringList, arguments);
    const TemporaryHome home;
    home.write(QStringLiteral("a.svg"), svg);
    const Result result = run(arguments, home.path());
    QCOMPARE(result.status, 2);
    QVERIFY(!result.diagnostics.isEmpty());
    QVERIFY(!home.exists(QStringLiteral("a.png")));
}

QTEST_GUILESS_MAIN(TestSvg2Png)
#include "tst_svg2png.moc"
