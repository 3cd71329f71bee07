#include "platform/findwallpaperbyname.h"
#include "platform/wallpapersearch.h"
#include "platform/wallpapersizeforscreen.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/temporaryhome.h"

#include <QDateTime>
#include <QFile>
#include <QTest>

namespace {

const char command[] = "qaz-svg2png -w %d -h %d -i \"%s\" -o \"%s\"";
const QByteArray fakeConverter = "while [ $# -gt 1 ]; do [ \"$1\" = -o ] && echo png > \"$2\"; shift 2; done";

QString find(const QString &name)
{
    char result[4096] = "untouched";
    FindWallPaperByName(name.toLocal8Bit().constData(), result, 1920, 1080, command);
    return QFile::decodeName(result);
}

bool setModificationTime(const QString &path, const QDateTime &time)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime);
}

} // namespace

class TestWallpaperSearch : public QObject
{
    Q_OBJECT
private slots:
    void standardSizeIsTheNearestRatios_data();
    void standardSizeIsTheNearestRatios();
    void argumentsAreFilledInWithoutAShell();
    void betterPlacesComeFirst();
    void namesThatAreNoFileNamesFindNothing();
    void svgIsConvertedUntilItChanges();
    void failedConversionFindsNothing();
};

void TestWallpaperSearch::standardSizeIsTheNearestRatios_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("standard");
    QTest::addColumn<QSize>("ratio");

    QTest::newRow("5:4") << QSize(1280, 1024) << QSize(1280, 1024) << QSize(5, 4);
    QTest::newRow("4:3") << QSize(1024, 768) << QSize(1600, 1200) << QSize(4, 3);
    QTest::newRow("3:2") << QSize(2256, 1504) << QSize(2160, 1440) << QSize(3, 2);
    QTest::newRow("16:10") << QSize(1440, 900) << QSize(1920, 1200) << QSize(16, 10);
    QTest::newRow("nearly 16:9") << QSize(1366, 768) << QSize(1920, 1080) << QSize(16, 9);
    QTest::newRow("21:9") << QSize(3440, 1440) << QSize(2560, 1080) << QSize(21, 9);
    QTest::newRow("portrait") << QSize(1080, 1920) << QSize(1280, 1024) << QSize(5, 4);
    QTest::newRow("two screens wide") << QSize(3840, 1080) << QSize(2560, 1080) << QSize(21, 9);
}

void TestWallpaperSearch::standardSizeIsTheNearestRatios()
{
    QFETCH(QSize, screen);
    int w1 = 0, h1 = 0, w2 = 0, h2 = 0;
    WallpaperSizeForScreen(screen.width(), screen.height(), &w1, &h1, &w2, &h2);
    QTEST(QSize(w1, h1), "standard");
    QTEST(QSize(w2, h2), "ratio");
    WallpaperSizeForScreen(0, 0, &w1, &h1, &w2, &h2);
    QVERIFY(w1 > 0 && h1 > 0);
}

void TestWallpaperSearch::argumentsAreFilledInWithoutAShell()
{
    const QString source = QStringLiteral("/a \"b\" $(c) %s %d\n");
    const QStringList expected = {QStringLiteral("qaz-svg2png"),
                                  QStringLiteral("-w"),
                                  QStringLiteral("19"),
                                  QStringLiteral("-h"),
                                  QStringLiteral("20"),
                                  QStringLiteral("-i"),
                                  source,
                                  QStringLiteral("-o"),
                                  QStringLiteral("-t %d")};
    QCOMPARE(convertArguments(QLatin1String(command), 19, 20, source, QStringLiteral("-t %d")), expected);
    QCOMPARE(convertArguments(QStringLiteral("x 100%% %dx%d %d %q %"), 1, 2, {}, {}).join(QLatin1Char('|')),
             QStringLiteral("x|100%|1x2|%d|%q|%"));
}

void TestWallpaperSearch::betterPlacesComeFirst()
{
    const TemporaryHome home;
    const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path(QStringLiteral("data"))));
    const QString own = QStringLiteral(".local/share/wallpapers/");
    const QString worstFirst[] = {QStringLiteral("data/wallpapers/tst-paper.jpg"),
                                  QStringLiteral("data/wallpapers/1920x1080/tst-paper.xpm"),
                                  own + QStringLiteral("tst-paper.jpeg"),
                                  own + QStringLiteral("tst-paper.png"),
                                  own + QStringLiteral("tst-paper"),
                                  own + QStringLiteral("16:9/tst-paper.xpm"),
                                  own + QStringLiteral("1920x1080/tst-paper.jpeg")};
    QCOMPARE(find(QStringLiteral("tst-paper")), QString());
    for (const QString &place : worstFirst) {
        const QString path = home.write(place, "image");
        QCOMPARE(find(QStringLiteral("tst-paper")), path);
    }
    QCOMPARE(find(QStringLiteral("tst-paper.png")), home.path(own + QStringLiteral("tst-paper.png")));
}

void TestWallpaperSearch::namesThatAreNoFileNamesFindNothing()
{
    const TemporaryHome home;
    home.write(QStringLiteral(".local/share/secret"), "secret");
    home.write(QStringLiteral(".local/share/wallpapers/1920x1080/paper.png"), "image");
    const QString names[] = {QString(), QStringLiteral(".."), QStringLiteral("../secret"),
                             QStringLiteral("1920x1080"), QString(5000, QLatin1Char('a'))};
    for (const QString &name : names)
        QCOMPARE(find(name), QString());
}

void TestWallpaperSearch::svgIsConvertedUntilItChanges()
{
    const TemporaryHome home;
    FakePrograms programs;
    programs.add(QStringLiteral("qaz-svg2png"), fakeConverter);
    const QString name = QStringLiteral("a \"quoted\" $(touch x)");
    const QString source = home.write(
        QStringLiteral(".local/share/wallpapers/") + name + QStringLiteral(".svg"), "<svg/>");
    QVERIFY(setModificationTime(source, QDateTime::currentDateTime().addSecs(-60)));

    const QString converted = find(name);
    QVERIFY2(converted.startsWith(home.path(QStringLiteral(".cache/qaz/wallpapers/"))),
             qPrintable(converted));
    const QStringList arguments = {QStringLiteral("-w"), QStringLiteral("1920"),
                                   QStringLiteral("-h"), QStringLiteral("1080"),
                                   QStringLiteral("-i"), source,
                                   QStringLiteral("-o"), converted};
    QCOMPARE(programs.calls(QStringLiteral("qaz-svg2png")), QVector<QStringList>{arguments});

    QCOMPARE(find(name), converted);
    QCOMPARE(programs.calls(QStringLiteral("qaz-svg2png")).size(), 1);
    QVERIFY(setModificationTime(source, QDateTime::currentDateTime().addSecs(60)));
    QCOMPARE(find(name), converted);
    QCOMPARE(programs.calls(QStringLiteral("qaz-svg2png")).size(), 2);
}

void TestWallpaperSearch::failedConversionFindsNothing()
{
    const TemporaryHome home;
    home.write(QStringLiteral(".local/share/wallpapers/paper.svgz"), "no svg");
    FakePrograms programs(FakePrograms::Path::Instead);
    programs.add(QStringLiteral("qaz-svg2png"), "exit 1");
    QCOMPARE(find(QStringLiteral("paper")), QString());
    QCOMPARE(programs.calls(QStringLiteral("qaz-svg2png")).size(), 1);
}

QTEST_GUILESS_MAIN(TestWallpaperSearch)
#include "tst_wallpapersearch.moc"
