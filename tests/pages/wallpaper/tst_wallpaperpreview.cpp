#include "pages/wallpaper/wallpaperimage.h"
#include "pages/wallpaper/wallpaperpreview.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QtGui>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QSize label(252, 191);
const QSize screen(2520, 1910); // ten times the label
const QRect canvas(0, 0, 242, 181);
const QColor fill(Qt::green);
const Fit fits[] = {Fit::Center, Fit::Tile, Fit::Stretch};

/// Each pixel has its own colour, so that a moved or mirrored part is seen.
QImage numbered(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QPoint pixel(i % image.width(), i / image.width());
        image.setPixel(pixel, qRgb(pixel.x() % 256, pixel.y() % 256, 128));
    }
    return image;
}

QByteArray encoded(const char *format, const QSize &size = {64, 48})
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!QImageWriter(&buffer, format).write(numbered(size)))
        qFatal("Can't write %s", format);
    return bytes;
}

} // namespace

class TestWallpaperPreview : public QObject
{
    Q_OBJECT
private slots:
    void imageIsPlaced()
    {
        const struct {
            Fit fit;
            QSize size;
            QRect place; // of the image, or of the first tile, on the canvas
        } rows[] = {{Fit::Stretch, {2, 2}, canvas},
                    {Fit::Stretch, screen, canvas},
                    {Fit::Center, {400, 300}, {101, 75, 40, 30}},
                    {Fit::Center, screen, {-5, -5, 252, 191}},
                    {Fit::Center, {4, 500}, {}},
                    {Fit::Tile, {1000, 700}, {0, 0, 100, 70}},
                    {Fit::Tile, {4, 500}, {0, 0, 1, 50}},
                    {Fit::Tile, {500, 4}, {0, 0, 50, 1}},
                    {Fit::Center, {}, {}},
                    {Fit::Tile, {}, {}},
                    {Fit::Stretch, {}, {}}};
        for (const auto &[fit, size, place] : rows) {
            const QImage image = numbered(size);
            const QImage scaled = image.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
            QImage expected(canvas.size(), QImage::Format_RGB32);
            for (int i = 0; i < canvas.width() * canvas.height(); ++i) {
                const QPoint pixel(i % canvas.width(), i / canvas.width());
                const QPoint inTile = fit == Fit::Tile && !place.isEmpty()
                                          ? QPoint(pixel.x() % place.width(), pixel.y() % place.height())
                                          : pixel;
                const bool isImage = place.contains(inTile);
                expected.setPixel(pixel, isImage ? scaled.pixel(inTile - place.topLeft()) : fill.rgb());
            }
            QCOMPARE(drawPreview(image, fit, fill, label, screen).convertToFormat(expected.format()),
                     expected);
        }
    }

    void extremesAreDrawn()
    {
        QImage line(2000000, 20, QImage::Format_RGB32); // Qt's own scaling draws such a one black
        line.fill(Qt::red);
        QImage translucent(screen, QImage::Format_ARGB32_Premultiplied);
        translucent.fill(qRgba(10, 20, 30, 128));
        for (Fit fit : fits) {
            QCOMPARE(drawPreview(line, fit, fill, label, screen).pixelColor(120, 90), QColor(Qt::red));
            QCOMPARE(drawPreview(translucent, fit, fill, label, screen).pixel(120, 90) & RGB_MASK,
                     QRgb(fit == Fit::Stretch ? translucent.pixel(0, 0) & RGB_MASK : 0x0a141e));
            QCOMPARE(drawPreview(line, fit, fill, {0, 0}, {0, 0}).size(), QSize(1, 1));
        }
    }

    void previewFileReplacesOnlyItsOwn()
    {
        const TemporaryHome home;
        const ScopedEnvironment cache("XDG_CACHE_HOME", QFile::encodeName(home.write("file"_s, {})));
        QCOMPARE(previewPath("Center"_s, Qt::blue, "/a/%1 b"_s), "/tmp/Center_#0000ff_%1 b.png"_s);
        const QImage image = numbered({8, 8});
        const QString path = home.write("shared/preview.png"_s, "older");
        QVERIFY(writePreview(path, image));
        QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32), image);

        const QString link = home.path("shared/link.png"_s);
        QVERIFY(QFile::link(home.write("victim"_s, "precious"), link));
        if (::geteuid() == 0)
            QCOMPARE(::chown(QFile::encodeName(path).constData(), 12345, 12345), 0);
        else
            QVERIFY(QFile::remove(path) && home.makeDirectory("shared/preview.png"_s));
        const QString before = home.fingerprint();
        for (const QString &refused : {link, path, home.path("missing/preview.png"_s)})
            QVERIFY2(!writePreview(refused, image), qPrintable(refused));
        QCOMPARE(home.fingerprint(), before);
    }

    void onlyWholeImagesAreRead_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isRead");
        const QByteArray svg
            = "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'><path d='M0 0h9v9z'/></svg>";
        for (const char *format : {"png", "jpg", "xpm"}) {
            const QByteArray content = encoded(format);
            QTest::addRow("whole.%s", format) << content << true;
            QTest::addRow("cut off.%s", format) << content.left(content.size() * 2 / 3) << false;
        }
        const QByteArray jpeg = encoded("jpg");
        QTest::newRow("last byte missing.jpg") << jpeg.chopped(1) << false;
        QTest::newRow("foreign bytes behind it.jpg") << jpeg + "\xFF\xFFmore" << true;
        QTest::newRow("end marker only in a comment.jpg")
            << QByteArray(jpeg).insert(2, QByteArray("\xFF\xFE\0\4\xFF\xD9", 6)).chopped(2) << false;
        QTest::newRow("wrong ending.png") << jpeg << true;
        QTest::newRow("empty.png") << QByteArray() << false;
        // The header alone tells that decoding would take more than 256 MB.
        QTest::newRow("16384 x 8193.bmp")
            << encoded("bmp").replace(18, 8, QByteArray("\0\x40\0\0\1\x20\0\0", 8)) << false;
        QTest::newRow("whole.svg") << svg << true;
        QTest::newRow("too large.svg") << QByteArray(svg).replace("64", "64000000") << false;
    }

    void onlyWholeImagesAreRead()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isRead);
        const TemporaryHome home;
        const QString path = home.write(QString::fromLatin1(QTest::currentDataTag()), content);
        QCOMPARE(readImage(path).size(), isRead ? QSize(64, 48) : QSize(0, 0));
    }

    void specialFilesAreNoImages()
    {
        const TemporaryHome home;
        const QString fifo = home.path("fifo.png"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        for (const QString &path : {fifo, "/dev/zero"_s, "/proc/kmsg"_s, home.path(), home.path("missing"_s)})
            QVERIFY2(readImage(path).isNull(), qPrintable(path));
    }

    void changedFileIsReadAgain()
    {
        const TemporaryHome home;
        WallpaperImage cache;
        const QString path = home.write("a.png"_s, encoded("png", {5, 5}));
        const QImage first = cache.load(path);
        QCOMPARE(first.size(), QSize(5, 5));
        // A name that is no file, as while typing, does not cost the decoded image.
        QVERIFY(cache.load(home.path("b.png"_s)).isNull());
        QCOMPARE(cache.load(path).cacheKey(), first.cacheKey());

        home.write("a.png"_s, encoded("png", {6, 6}));
        QCOMPARE(cache.load(path).size(), QSize(6, 6));
    }
};

QTEST_GUILESS_MAIN(TestWallpaperPreview)
#include "tst_wallpaperpreview.moc"
