#include "freedesktop/images.h"
#include "tests/support/temporaryhome.h"

#include <sys/mman.h>

namespace {

const QDir images(QAZ_SOURCE_DIR "/tests/freedesktop/images"_s);

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
    const QString text = QString::fromLatin1(status.readAll());
    return QRegularExpression("VmPeak:\\s*(\\d+)"_s).match(text).captured(1).toLongLong();
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT
private slots:
    void imagesAreLoaded()
    {
        const TemporaryHome home;
        // What a program has reserved itself is not counted against an image.
        QVERIFY(::mmap(nullptr, 8UL << 30U, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)
                != MAP_FAILED);
        const qint64 before = mostMemory();
        QStringList paths{home.write("9x9-naming.svg"_s, naming(images.filePath("16x12-whole.png"_s))),
                          home.path("1000x1000-whole.png"_s)};
        QImage large(1000, 1000, QImage::Format_RGB32);
        large.fill(Qt::red);
        QVERIFY(large.save(paths.last()));
        for (const QString &name : images.entryList(QDir::Files)) // each begins with its size
            paths.append(images.filePath(name));
        QCOMPARE(paths.size(), 16);
        for (const QString &path : qAsConst(paths)) {
            const QSize size = loadImage(path).size();
            const QString start = "/%1x%2-"_s.arg(size.width()).arg(size.height());
            QVERIFY2(path.contains(start), qPrintable(path + start));
        }
        QVERIFY(mostMemory() < before + 5LL * 1024 * 1024);
        for (const char *name : {"16x12-whole.png", "16x12-stating-less.ico"}) { // its decoded size counts
            QVERIFY(!loadImage(images.filePath(QLatin1String(name)), 16 * 12).isNull());
            QVERIFY(loadImage(images.filePath(QLatin1String(name)), 16 * 12 - 1).isNull());
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
        QStringList drawings{"/a.svg"_s, "b.tar.svgz"_s, ".svg"_s, {}, "/a.SVG"_s, "a.svg.png"_s, "svg"_s};
        drawings.erase(std::remove_if(drawings.begin(), drawings.end(), std::not_fn(isSvg)), drawings.end());
        QCOMPARE(drawings.join(u' '), "/a.svg b.tar.svgz .svg"_s);
        QFile file(images.filePath("64x48-whole.svg"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray svg = file.readAll();
        const QImage filled = drawSvg(svg, {40, 40}, Qt::white);
        QCOMPARE(filled.pixelColor(5, 39), QColor(Qt::red));
        QCOMPARE(filled.pixelColor(35, 5), QColor(Qt::white));
        const QImage icon = drawSvg(svg, {40, 40}, Qt::transparent, Qt::KeepAspectRatio);
        QCOMPARE(icon.size(), QSize(40, 30));
        QCOMPARE(icon.pixelColor(35, 5).alpha(), 0);
        QVERIFY(icon.hasAlphaChannel() && !filled.hasAlphaChannel());
        for (const auto &[stated, thin] :
             {std::pair("width='9000'", QSize(40, 1)), {"width='1'", QSize(1, 40)}}) {
            const QByteArray drawing = QByteArray(svg).replace("width='64'", stated);
            QCOMPARE(drawSvg(drawing, {40, 40}, Qt::white, Qt::KeepAspectRatio).size(), thin);
        }
        QVERIFY(drawSvg("no drawing", {40, 40}, Qt::white).isNull());
    }
};

QTEST_GUILESS_MAIN(TestImages)
#include "tst_images.moc"
