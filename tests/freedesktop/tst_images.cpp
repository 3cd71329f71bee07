#include "freedesktop/images.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

namespace {

const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'><path fill='red' "
                       "d='M0 0h32v48h-32z'/></svg>";

QByteArray encoded(const char *format)
{
    QImage image(64, 48, QImage::Format_RGB32);
    for (int i = 0; i < 64 * 48; ++i) // so that a cut-off file lacks something
        image.setPixel(i % 64, i / 64, QRgb(i * 7919));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!QImageWriter(&buffer, format).write(image))
        qFatal("Can't write %s", format);
    return bytes;
}

/// An icon file that states 16 x 16 pixels for the PNG of any size that it holds.
QByteArray lyingIcon(const QByteArray &png)
{
    const QByteArray icon("\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0", 14);
    const int numbers[] = {png.size(), 22};
    return icon + QByteArray(reinterpret_cast<const char *>(numbers), 8) + png;
}

/// A PNG whose header states another size than its pixels have.
QByteArray pngStating(quint32 width, quint32 height)
{
    QByteArray png = encoded("png");
    const quint32 size[] = {qToBigEndian(width), qToBigEndian(height)};
    png.replace(16, 8, reinterpret_cast<const char *>(size), 8);
    quint32 sum = ~0U;
    for (const char byte : png.mid(12, 17)) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xEDB88320U : sum >> 1;
    }
    sum = qToBigEndian(~sum);
    return png.replace(29, 4, reinterpret_cast<const char *>(&sum), 4);
}

/// A drawing of 9 x 9 pixels with a picture.
QByteArray naming(const QString &picture)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='9' "
           "height='9'><image width='9' height='9' xlink:href=' "
           + picture.toUtf8() + "'/></svg>";
}

/// The address space that this process took at most, in kB.
qint64 mostMemory()
{
    QFile status("/proc/self/status"_s);
    status.open(QIODevice::ReadOnly);
    return QRegularExpression("VmPeak:\\s*(\\d+)"_s)
        .match(QString::fromLatin1(status.readAll()))
        .captured(1)
        .toLongLong();
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT
private slots:
    void imagesAreLoaded()
    {
        const TemporaryHome home;
        const QByteArray png = encoded("png"), jpeg = encoded("jpg"), xpm = encoded("xpm");
        const std::tuple<QString, QByteArray, QSize> rows[] = {
            {"whole.png"_s, png, {64, 48}},
            {"whole.xpm"_s, xpm, {64, 48}},
            {"cut off.png"_s, png.chopped(200), {}},
            {"cut off.xpm"_s, xpm.chopped(200), {}},
            {"shown as far as it goes, ending wrong.png"_s, jpeg.left(jpeg.size() * 2 / 3), {64, 48}},
            {"empty.png"_s, {}, {}},
            {"text.png"_s, "text", {}},
            {"whole.svg"_s, svg, {64, 48}},
            {"names a picture.svg"_s, naming(home.write("a.png"_s, png)), {9, 9}},
            {"holds a picture.svg"_s,
             naming("data:image/png;base64,"_s + QString::fromLatin1(png.toBase64())),
             {9, 9}},
            {"too large.svg"_s, QByteArray(svg).replace("64", "64000000"), {}},
            {"too large.png"_s, pngStating(16385, 16384), {}},
            {"ends in odd numbers.png"_s, pngStating(0x7fffffff, 0x7fffffff), {}},
            {"states much less.ico"_s, lyingIcon(pngStating(40000, 40000)), {}}};
        const qint64 before = mostMemory();
        for (const auto &[name, content, size] : rows)
            QVERIFY2(loadImage(home.write(name, content)).size() == size.expandedTo({0, 0}),
                     qPrintable(name));
        QVERIFY(mostMemory() < before + 5LL * 1024 * 1024);
    }

    void decodedSizeCounts()
    {
        const TemporaryHome home;
        for (const QString &image : {home.write("a.png"_s, encoded("png")),
                                     home.write("states less.ico"_s, lyingIcon(encoded("png")))}) {
            QCOMPARE(loadImage(image, 64 * 48).size(), QSize(64, 48));
            QVERIFY(loadImage(image, 64 * 48 - 1).isNull());
        }
    }

    void specialFilesAreNoImages()
    {
        const TemporaryHome home;
        const QString fifo = home.makeFifo("fifo.png"_s);
        const QByteArray named = naming(fifo);
        QVERIFY(drawSvg(named, {40, 40}, Qt::white).isNull());
        for (const QString &path : {fifo, home.write("names one.svg"_s, named), "/dev/zero"_s, "/proc/kmsg"_s,
                                    home.path(), home.path("missing"_s)})
            QVERIFY2(loadImage(path).isNull() && imageSize(path).isEmpty(), qPrintable(path));
    }

    void svgIsDrawn()
    {
        for (const char *path : {"/a.svg", "b.tar.svgz", ".svg"})
            QVERIFY2(isSvg(QLatin1String(path)), path);
        for (const char *path : {"", "/a.SVG", "a.svg.png", "svg"})
            QVERIFY2(!isSvg(QLatin1String(path)), path);
        const QImage filled = drawSvg(svg, {40, 40}, Qt::white);
        QCOMPARE(filled.pixelColor(5, 39), QColor(Qt::red));
        QCOMPARE(filled.pixelColor(35, 5), QColor(Qt::white));
        const QImage icon = drawSvg(svg, {40, 40}, Qt::transparent, Qt::KeepAspectRatio);
        QCOMPARE(icon.size(), QSize(40, 30));
        QVERIFY(icon.hasAlphaChannel() && !filled.hasAlphaChannel());
        for (const auto &[stated, thin] :
             {std::pair("width='9000'", QSize(40, 1)), {"width='1'", QSize(1, 40)}}) {
            const QByteArray drawing = QByteArray(svg).replace("width='64'", stated);
            QCOMPARE(drawSvg(drawing, {40, 40}, Qt::white, Qt::KeepAspectRatio).size(), thin);
        }
        QCOMPARE(icon.pixelColor(35, 5).alpha(), 0);
        QVERIFY(drawSvg("no drawing", {40, 40}, Qt::white).isNull());
    }
};

QTEST_GUILESS_MAIN(TestImages)
#include "tst_images.moc"
