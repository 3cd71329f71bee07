#include "pages/wallpaper/desktopcolor.h"
#include "pages/wallpaper/wallpaperimage.h"
#include "pages/wallpaper/wallpaperpreview.h"
#include "tests/support/temporaryhome.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QSize label(252, 191);
const QSize screen(2520, 1910); // ten times the label
const QColor fill(Qt::green);

/// Each pixel has its own colour, so that a moved or mirrored part is seen.
QImage numbered(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, 128));
    }
    return image;
}

QImage preview(const QImage &image, Fit fit)
{
    return drawPreview(image, fit, fill, label, screen);
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!QImageWriter(&buffer, format).write(image))
        qFatal("Can't write %s", format);
    return bytes;
}

} // namespace

class TestWallpaperPreview : public QObject
{
    Q_OBJECT
private slots:
    void oldColorNamesAreTranslated_data();
    void oldColorNamesAreTranslated();
    void stretchFillsTheCanvas();
    void centerPlacesOrCrops();
    void tilesStartAtTheCorner();
    void extremeSizesEnd();
    void pixelsAreCopiedNotBlended();
    void withoutAnImageOnlyTheColorIsDrawn();
    void previewFileIsNamedByWhatItShows();
    void previewFileReplacesOnlyItsOwn();
    void onlyWholeImagesAreRead_data();
    void onlyWholeImagesAreRead();
    void specialFilesAreNoImages();
    void changedFileIsReadAgain();
};

void TestWallpaperPreview::oldColorNamesAreTranslated_data()
{
    QTest::addColumn<QString>("color"); // empty: invalid
    const char *rows[][2] = {{"qvgray", "#c0c0c0"},
                             {"qvgrey", "#c0c0c0"},
                             {"qvdarkgray", "#606060"},
                             {"qvdarkgrey", "#606060"},
                             {"qvlightray", "#dfdfdf"},
                             {"qvblue", "#0000ff"},
                             {"qvlightblue", "#a6caf0"},
                             {"qvroyalblue", "#3a6ea5"},
                             {"qvyellow", "#f5db95"},
                             {"qvlightyellow", "#ffffe1"},
                             {"blue", "#0000ff"},
                             {"#12Ab34", "#12ab34"},
                             {"qvlightgray", ""},
                             {"QvBlue", ""},
                             {"qvblue ", ""},
                             {"", ""}};
    for (const auto &row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[1]);
}

void TestWallpaperPreview::oldColorNamesAreTranslated()
{
    QFETCH(QString, color);
    const QColor found = desktopColor(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(found.isValid() ? found.name() : QString(), color);
}

void TestWallpaperPreview::stretchFillsTheCanvas()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, qRgb(255, 0, 0));
    image.setPixel(1, 0, qRgb(0, 255, 0));
    image.setPixel(0, 1, qRgb(0, 0, 255));
    image.setPixel(1, 1, qRgb(255, 255, 255));
    const QImage stretched = preview(image, Fit::Stretch);
    QCOMPARE(stretched.size(), QSize(242, 181));
    for (const QPoint &p : {QPoint(0, 0), QPoint(241, 0), QPoint(0, 180), QPoint(241, 180), QPoint(120, 89)})
        QCOMPARE(stretched.pixel(p), image.pixel(p.x() / 121, p.y() / 91));
}

void TestWallpaperPreview::centerPlacesOrCrops()
{
    const QImage small = preview(numbered({400, 300}), Fit::Center); // 40x30 at (101, 75)
    QCOMPARE(small.size(), QSize(242, 181));
    QCOMPARE(small.pixelColor(100, 75), fill);
    QCOMPARE(small.pixelColor(101, 74), fill);
    QVERIFY(small.pixelColor(101, 75) != fill);
    QVERIFY(small.pixelColor(140, 104) != fill);
    QCOMPARE(small.pixelColor(141, 104), fill);
    QCOMPARE(small.pixelColor(140, 105), fill);

    // As large as the screen: the size of the label, of which the canvas crops five pixels on each side.
    const QImage image = numbered(screen);
    const QImage scaled = image.scaled(label, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    const QImage large = preview(image, Fit::Center);
    QCOMPARE(large.convertToFormat(QImage::Format_RGB32), scaled.copy(5, 5, 242, 181));
}

void TestWallpaperPreview::tilesStartAtTheCorner()
{
    const QImage tiled = preview(numbered({1000, 700}), Fit::Tile); // tiles of 100x70
    const QImage tile = numbered({1000, 700}).scaled(100, 70, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    QCOMPARE(tiled.size(), QSize(242, 181));
    for (int y = 0; y < tiled.height(); ++y) {
        for (int x = 0; x < tiled.width(); ++x)
            QCOMPARE(tiled.pixel(x, y), tile.pixel(x % 100, y % 70));
    }
}

void TestWallpaperPreview::extremeSizesEnd()
{
    for (const QSize &size : {QSize(1, 1), QSize(4, 500), QSize(500, 4)}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        QCOMPARE(preview(image, Fit::Tile).pixelColor(241, 180), QColor(Qt::red));
        QCOMPARE(preview(image, Fit::Center).pixelColor(0, 0), fill);
        QCOMPARE(drawPreview(image, Fit::Tile, fill, QSize(0, 0), QSize(0, 0)).size(), QSize(1, 1));
    }
    QImage line(2000000, 20, QImage::Format_RGB32);
    line.fill(Qt::red);
    for (Fit fit : {Fit::Center, Fit::Tile, Fit::Stretch})
        QCOMPARE(preview(line, fit).pixelColor(120, 90), QColor(Qt::red));
}

void TestWallpaperPreview::pixelsAreCopiedNotBlended()
{
    QImage image(2520, 1910, QImage::Format_ARGB32_Premultiplied);
    image.fill(qRgba(10, 20, 30, 128));
    for (Fit fit : {Fit::Center, Fit::Tile})
        QCOMPARE(preview(image, fit).pixel(120, 90) & RGB_MASK, QRgb(qRgb(10, 20, 30) & RGB_MASK));
}

void TestWallpaperPreview::withoutAnImageOnlyTheColorIsDrawn()
{
    for (Fit fit : {Fit::Center, Fit::Tile, Fit::Stretch}) {
        QImage expected(242, 181, QImage::Format_RGB32);
        expected.fill(fill);
        QCOMPARE(preview(QImage(), fit), expected);
        QCOMPARE(fitFromWord(wordFromFit(fit)), fit);
    }
    QCOMPARE(fitFromWord(QStringLiteral("stretch")), Fit::Center);
}

void TestWallpaperPreview::previewFileIsNamedByWhatItShows()
{
    const TemporaryHome home;
    QCOMPARE(previewPath(QStringLiteral("Center"), Qt::blue, QStringLiteral("/a/%1 b.jpg")),
             home.path(QStringLiteral(".cache/qaz/wallpapers/Center_#0000ff_%1 b.jpg.png")));
    home.write(QStringLiteral("file"), {});
    const ScopedEnvironment cache("XDG_CACHE_HOME", QFile::encodeName(home.path(QStringLiteral("file"))));
    QCOMPARE(previewPath(QStringLiteral("Center"), Qt::blue, QStringLiteral("qaz-default")),
             QStringLiteral("/tmp/Center_#0000ff_qaz-default.png"));
}

void TestWallpaperPreview::previewFileReplacesOnlyItsOwn()
{
    const TemporaryHome home;
    const QImage image = numbered({8, 8});
    const QString path = home.write(QStringLiteral("shared/preview.png"), "older");
    QVERIFY(writePreview(path, image));
    QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32), image);

    const QString victim = home.write(QStringLiteral("victim"), "precious");
    const QString link = home.path(QStringLiteral("shared/link.png"));
    QVERIFY(QFile::link(victim, link));
    QVERIFY(!writePreview(link, image));
    QCOMPARE(home.read(QStringLiteral("victim")), QByteArray("precious"));

    if (::geteuid() == 0)
        QCOMPARE(::chown(QFile::encodeName(path).constData(), 12345, 12345), 0);
    else
        QVERIFY(QFile::remove(path) && home.makeDirectory(QStringLiteral("shared/preview.png")));
    const QString before = home.fingerprint();
    QVERIFY(!writePreview(path, QImage(3, 3, QImage::Format_RGB32)));
    QVERIFY(!writePreview(home.path(QStringLiteral("missing/preview.png")), image));
    QCOMPARE(home.fingerprint(), before);
}

void TestWallpaperPreview::onlyWholeImagesAreRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QSize>("size"); // empty: not read

    const QImage image = numbered({64, 48});
    const QByteArray svg
        = "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'><path d='M0 0h9v9z'/></svg>";
    for (const char *format : {"png", "jpg", "xpm", "svg"}) {
        const QByteArray content = qstrcmp(format, "svg") == 0 ? svg : encoded(image, format);
        const QString name = QStringLiteral("image.") + QLatin1String(format);
        QTest::newRow(format) << name << content << image.size();
        QTest::addRow("%s, cut off", format) << name << content.left(content.size() * 2 / 3) << QSize(0, 0);
    }
    const QByteArray jpeg = encoded(image, "jpg");
    QTest::newRow("jpg, last byte missing") << QStringLiteral("a.jpg") << jpeg.chopped(1) << QSize(0, 0);
    QTest::newRow("jpg, foreign bytes behind it")
        << QStringLiteral("a.jpg") << jpeg + "\xFF\xFFmore" << image.size();
    QTest::newRow("jpg, end marker only in a comment")
        << QStringLiteral("a.jpg")
        << QByteArray(jpeg).insert(2, QByteArray("\xFF\xFE\0\4\xFF\xD9", 6)).chopped(2) << QSize(0, 0);
    QTest::newRow("wrong ending") << QStringLiteral("a.png") << jpeg << image.size();
    QTest::newRow("empty file") << QStringLiteral("a.png") << QByteArray() << QSize(0, 0);
    QTest::newRow("text") << QStringLiteral("a.png") << QByteArray("text") << QSize(0, 0);
    // The header alone tells that decoding would take more than 256 MB.
    QByteArray huge = encoded(image, "bmp");
    huge.replace(18, 8, QByteArray("\0\x40\0\0\1\x20\0\0", 8)); // 16384 x 8193
    QTest::newRow("too large") << QStringLiteral("a.bmp") << huge << QSize(0, 0);
    QTest::newRow("svg, too large") << QStringLiteral("a.svg") << QByteArray(svg).replace("64", "64000000")
                                    << QSize(0, 0);
}

void TestWallpaperPreview::onlyWholeImagesAreRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QSize, size);
    const TemporaryHome home;
    QCOMPARE(readImage(home.write(name, content)).size(), size);
}

void TestWallpaperPreview::specialFilesAreNoImages()
{
    const TemporaryHome home;
    const QString fifo = home.path(QStringLiteral("fifo.png"));
    QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    for (const QString &path :
         {fifo, QStringLiteral("/dev/zero"), home.path(), home.path(QStringLiteral("missing"))})
        QVERIFY2(readImage(path).isNull(), qPrintable(path));
}

void TestWallpaperPreview::changedFileIsReadAgain()
{
    const TemporaryHome home;
    WallpaperImage cache;
    const QString path = home.write(QStringLiteral("a.png"), encoded(numbered({5, 5}), "png"));
    const QImage first = cache.load(path);
    QCOMPARE(first.size(), QSize(5, 5));
    QCOMPARE(cache.load(path).cacheKey(), first.cacheKey());

    // A name that is no file, as while typing, does not cost the decoded image.
    QVERIFY(cache.load(home.path(QStringLiteral("b.png"))).isNull());
    QCOMPARE(cache.load(path).cacheKey(), first.cacheKey());

    home.write(QStringLiteral("a.png"), encoded(numbered({6, 6}), "png"));
    QCOMPARE(cache.load(path).size(), QSize(6, 6));
    QVERIFY(QFile::remove(path));
    QVERIFY(cache.load(path).isNull());
}

QTEST_GUILESS_MAIN(TestWallpaperPreview)
#include "tst_wallpaperpreview.moc"
