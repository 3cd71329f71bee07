#include "pages/wallpaper/keptpreview.h"
#include "pages/wallpaper/wallpaperpreview.h"
#include "tests/support/temporaryhome.h"

#include <functional>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QSize label(252, 191);
const QSize screen(2520, 1910); // ten times the label
const QRect canvas(0, 0, 242, 181);
const QColor fill(Qt::green);
const QByteArray red = "/* XPM */\nstatic char *x[] = {\"1 1 1 1\", \"a c red\", \"a\"};\n"; // one pixel

/// Each pixel has its own colour, so that a moved or mirrored part is seen.
QImage numbered(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int x = 0; x < size.width(); ++x)
        for (int y = 0; y < size.height(); ++y)
            image.setPixel(x, y, qRgb(x % 256, y % 256, 128));
    return image;
}

} // namespace

class TestWallpaperPreview : public QObject
{
    Q_OBJECT
private slots:
    void imageIsPlaced()
    {
        // The place is that of the image, or of the first tile, on the canvas.
        const std::tuple<Fit, QSize, QRect> rows[] = {{Fit::Stretch, {2, 2}, canvas},
                                                      {Fit::Stretch, screen, canvas},
                                                      {Fit::Center, {400, 300}, {101, 75, 40, 30}},
                                                      {Fit::Center, screen, {-5, -5, 252, 191}},
                                                      {Fit::Center, {4, 500}, {}},
                                                      {Fit::Tile, {1000, 700}, {0, 0, 100, 70}},
                                                      {Fit::Tile, {4, 4}, {0, 0, 1, 1}},
                                                      {Fit::Stretch, {}, {}}};
        for (const auto &[fit, size, place] : rows) {
            const QImage image = numbered(size);
            const QImage scaled = image.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
            QImage expected(canvas.size(), QImage::Format_RGB32);
            for (int x = 0; x < canvas.width(); ++x)
                for (int y = 0; y < canvas.height(); ++y) {
                    const QPoint pixel = fit == Fit::Tile ? QPoint(x % place.width(), y % place.height())
                                                          : QPoint(x, y) - place.topLeft();
                    expected.setPixel(x, y, scaled.valid(pixel) ? scaled.pixel(pixel) : fill.rgb());
                }
            QCOMPARE(drawPreview(image, {fit, fill, label, screen}).convertToFormat(expected.format()),
                     expected);
        }
    }

    void extremesAreDrawn()
    {
        QImage line(2000000, 20, QImage::Format_RGB32); // Qt's own scaling draws such a one black
        line.fill(Qt::red);
        QImage translucent(screen, QImage::Format_ARGB32_Premultiplied);
        translucent.fill(qRgba(10, 20, 30, 128));
        for (const Fit fit : {Fit::Center, Fit::Tile, Fit::Stretch}) {
            const QPoint place = fit == Fit::Center ? QPoint(120, 90) : QPoint(0, 0);
            QCOMPARE(drawPreview(line, {fit, fill, label, screen}).pixelColor(place), QColor(Qt::red));
            QCOMPARE(drawPreview(translucent, {fit, fill, label, screen}).pixel(120, 90) & RGB_MASK,
                     QRgb(fit == Fit::Stretch ? translucent.pixel(0, 0) & RGB_MASK : 0x0a141e));
            QCOMPARE(drawPreview(line, {fit, fill, {0, 0}, {0, 0}}).size(), QSize(1, 1));
        }
        const QImage wide = numbered({40000, 20});
        QImage expected(canvas.size(), wide.format());
        for (int x = 0; x < canvas.width(); ++x)
            for (int y = 0; y < canvas.height(); ++y)
                expected.setPixel(x, y, wide.pixel(x * wide.width() / 242, y * wide.height() / 181));
        QCOMPARE(drawPreview(wide, {Fit::Stretch, fill, label, screen}), expected);
    }

    void keptPreviewIsUsedWhileNothingChanged()
    {
        const TemporaryHome home;
        const QString image = home.write("a.xpm"_s, red);
        const QString kept = home.path(".cache/qaz/wallpapers/Tile_#00ff00_a.xpm.png"_s);
        QCOMPARE(previewPath("Tile"_s, fill, image), kept);
        const QByteArray file = kept.toLatin1(), directory = QFileInfo(kept).path().toLatin1();
        const PreviewLook look = {Fit::Tile, fill, label, screen};
        // Another picture with the same origin: it is seen when the file is used.
        const auto plant = [&] {
            QCOMPARE(previewOfFile(image, look, kept).pixelColor(0, 0), QColor(Qt::red));
            QImage planted(kept);
            planted.fill(Qt::blue);
            QVERIFY(planted.save(kept)); // which keeps the file's mode
            QCOMPARE(previewOfFile(image, look, kept).pixelColor(0, 0), QColor(Qt::blue));
        };
        plant();
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(image).constData(), &status), 0);
        QString origin = "Origin:"_s;
        for (const quint64 part : {quint64(status.st_dev), quint64(status.st_ino), quint64(status.st_size),
                                   quint64(status.st_mtim.tv_sec), quint64(status.st_mtim.tv_nsec)})
            origin += u' ' + QString::number(part);
        QCOMPARE(QImage(kept).text(), origin + " Tile #00ff00 252x191 2520x1910 "_s + image);
        const std::function<bool()> changes[] = {
            [&] { return ::chmod(file.constData(), 0640) == 0; },
            [&] { return ::chmod(directory.constData(), 0750) == 0; },
            [&] { return QFile::rename(kept, kept + u'x') && QFile::link(kept + u'x', kept); },
            [&] { return home.write("a.xpm"_s, red + ' ') == image; }};
        for (const auto &change : changes) {
            QVERIFY(change());
            QCOMPARE(previewOfFile(image, look, kept).pixelColor(0, 0), QColor(Qt::red));
            QVERIFY(::chmod(directory.constData(), 0700) == 0 && QFile::remove(kept));
            plant();
        }
        QVERIFY(previewOfFile(home.path("none.xpm"_s), look, kept).isNull());
    }

    void previewFileReplacesOnlyItsOwn()
    {
        const TemporaryHome home;
        const ScopedEnvironment cache("XDG_CACHE_HOME", QFile::encodeName(home.write("file"_s, {})));
        QCOMPARE(previewPath("Center"_s, Qt::blue, "/a/%1 b"_s), "/tmp/Center_#0000ff_%1 b.png"_s);
        const QString image = home.write("a.xpm"_s, red);
        const PreviewLook look = {Fit::Stretch, fill, label, screen};
        const QString path = home.write("shared/preview.png"_s, "older");
        previewOfFile(image, look, path);
        QCOMPARE(QImage(path).pixelColor(241, 180), QColor(Qt::red));
        QVERIFY(!(QFileInfo(path).permissions() & 0x77)
                && QFileInfo(path).size() > 242 * 181); // uncompressed

        const QString link = home.path("shared/link.png"_s);
        QVERIFY(QFile::link(home.write("victim"_s, "precious"), link));
        if (::geteuid() != 0 || ::chown(QFile::encodeName(path).constData(), 12345, 12345) != 0)
            QVERIFY(QFile::remove(path) && home.makeDirectory("shared/preview.png"_s));
        const QString before = home.fingerprint();
        for (const QString &refused : {link, path, home.path("file/preview.png"_s)})
            QCOMPARE(previewOfFile(image, look, refused).pixelColor(241, 180), QColor(Qt::red));
        QCOMPARE(home.fingerprint(), before);
    }
};

QTEST_GUILESS_MAIN(TestWallpaperPreview)
#include "tst_wallpaperpreview.moc"
