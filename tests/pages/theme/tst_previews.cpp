#include "pages/theme/packedimage.h"
#include "pages/theme/previewicon.h"
#include "pages/theme/previews.h"

#include <QTest>

namespace {

const QSize canvasSize(110, 32);

QImage filled(int width, int height, const QColor &color)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

/// A button: \a released above black.
QImage button(int width, int height, const QColor &released)
{
    QImage image = filled(width, height, Qt::black);
    for (int y = 0; y < height / 2; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, released);
    }
    return image;
}

} // namespace

class TestPreviews : public QObject
{
    Q_OBJECT
private slots:
    void threeImagesStandSideBySide();
    void imagesAreCopiedWithoutBlending();
    void titleBarGeometry();
    void titleIsTiledFromTheCanvasOrigin();
    void oddSizes_data();
    void oddSizes();
    void swatches();
    void iconsKeepTheirPixels();
};

void TestPreviews::threeImagesStandSideBySide()
{
    const QImage preview = threeImagesPreview(canvasSize, filled(4, 7, Qt::red), filled(10, 40, Qt::green),
                                              QImage());
    // 36 pixels each; 32 / 2 - 7 / 2 = 13
    QCOMPARE(preview.pixelColor(0, 12), QColor(Qt::transparent));
    QCOMPARE(preview.pixelColor(0, 13), QColor(Qt::red));
    QCOMPARE(preview.pixelColor(3, 19), QColor(Qt::red));
    QCOMPARE(preview.pixelColor(4, 19), QColor(Qt::transparent));
    QCOMPARE(preview.pixelColor(0, 20), QColor(Qt::transparent));
    QCOMPARE(preview.pixelColor(35, 16), QColor(Qt::transparent));
    QCOMPARE(preview.pixelColor(36, 0), QColor(Qt::green));
    QCOMPARE(preview.pixelColor(45, 31), QColor(Qt::green));
    QCOMPARE(preview.pixelColor(72, 16), QColor(Qt::transparent));
}

void TestPreviews::imagesAreCopiedWithoutBlending()
{
    const QColor glass(255, 0, 0, 51);
    const QImage preview = threeImagesPreview({9, 4}, filled(9, 4, Qt::blue), filled(3, 4, glass), QImage());
    QCOMPARE(preview.pixelColor(2, 2), QColor(Qt::blue));
    QCOMPARE(preview.pixelColor(3, 2), glass);
    QCOMPARE(preview.pixelColor(6, 2), QColor(Qt::blue));
}

void TestPreviews::titleBarGeometry()
{
    DecorImages images;
    images.title = filled(5, 20, Qt::gray);
    images.topFrame = filled(3, 4, Qt::yellow);
    images.topLeftCorner = filled(6, 10, Qt::cyan);
    images.topRightCorner = filled(7, 10, Qt::magenta);
    images.leftFrame = filled(2, 9, Qt::white);
    images.rightFrame = filled(3, 9, Qt::white);
    images.minimizeButton = button(8, 13, Qt::red);
    images.maximizeButton = button(9, 14, Qt::green);
    images.closeButton = button(10, 12, Qt::blue);
    const QImage preview = decorPreview(canvasSize, images);
    struct Pixel {
        int x;
        int y;
        QColor color;
    };
    const Pixel pixels[] = {
        {0, 0, Qt::cyan},
        {5, 3, Qt::cyan},
        {6, 0, Qt::yellow},
        {102, 3, Qt::yellow},
        {103, 0, Qt::magenta},
        {1, 9, Qt::cyan},
        {1, 10, Qt::transparent},
        {2, 4, Qt::gray},
        {2, 23, Qt::gray},
        {2, 24, Qt::transparent},
        // the title reaches from 2 to 2 + 110 - 3 - 2 and covers what it meets
        {107, 4, Qt::gray},
        {107, 23, Qt::gray},
        {108, 4, Qt::magenta},
        {108, 20, Qt::transparent},
        // close at 110 - 5 - 10, maximise 2 pixels and its width before it, minimise without a gap
        {94, 5, Qt::gray},
        {95, 4, Qt::blue},
        {104, 9, Qt::blue},
        {104, 10, Qt::gray},
        {105, 5, Qt::gray},
        {93, 5, Qt::gray},
        {92, 10, Qt::green},
        {84, 4, Qt::green},
        {83, 5, Qt::red},
        {76, 9, Qt::red},
        {76, 10, Qt::gray},
        {75, 5, Qt::gray}};
    for (const Pixel &pixel : pixels)
        QVERIFY2(preview.pixelColor(pixel.x, pixel.y) == pixel.color,
                 qPrintable(QStringLiteral("%1, %2: %3")
                                .arg(pixel.x)
                                .arg(pixel.y)
                                .arg(preview.pixelColor(pixel.x, pixel.y).name(QColor::HexArgb))));
}

void TestPreviews::titleIsTiledFromTheCanvasOrigin()
{
    DecorImages images;
    images.title = filled(4, 4, Qt::white);
    images.title.setPixelColor(1, 2, Qt::red);
    images.topFrame = images.topLeftCorner = images.topRightCorner = filled(1, 1, Qt::black);
    images.leftFrame = images.rightFrame = filled(3, 1, Qt::black);
    images.minimizeButton = images.maximizeButton = images.closeButton = filled(1, 1, Qt::black);
    const QImage preview = decorPreview({40, 12}, images);
    QCOMPARE(preview.pixelColor(5, 2), QColor(Qt::red));
    QCOMPARE(preview.pixelColor(4, 3), QColor(Qt::white));
    QCOMPARE(preview.pixelColor(9, 2), QColor(Qt::red));
}

void TestPreviews::oddSizes_data()
{
    QTest::addColumn<QSize>("imageSize");
    QTest::addColumn<QSize>("canvas");
    QTest::newRow("single pixels") << QSize(1, 1) << canvasSize;
    QTest::newRow("far larger than the canvas") << QSize(10000, 50) << canvasSize;
    QTest::newRow("as tall as wide") << QSize(300, 3000) << canvasSize;
    QTest::newRow("a canvas without pixels") << QSize(4, 4) << QSize(110, 0);
}

void TestPreviews::oddSizes()
{
    QFETCH(QSize, imageSize);
    QFETCH(QSize, canvas);
    const QImage image = filled(imageSize.width(), imageSize.height(), Qt::red);
    const QImage preview = decorPreview(canvas,
                                        {image, image, image, image, image, image, image, image, image});
    QCOMPARE(preview.size(), canvas.isEmpty() ? QSize(0, 0) : canvas);
    // Half of one row is no row: the button of one pixel is not drawn, a button's lower half never is.
    if (imageSize.height() == 1)
        QCOMPARE(preview.pixelColor(canvas.width() - 6, 2), QColor(Qt::transparent));
    QCOMPARE(threeImagesPreview(canvas, image, image, image).size(), preview.size());
}

void TestPreviews::swatches()
{
    const QImage gradient = colorSwatch(canvasSize, Qt::black, Qt::white);
    QVERIFY(gradient.pixelColor(0, 16).red() < 5);
    QVERIFY(gradient.pixelColor(109, 16).red() > 250);
    QVERIFY(qAbs(gradient.pixelColor(55, 31).red() - 128) < 4);
    QCOMPARE(colorSwatch(canvasSize, Qt::red, QColor()).pixelColor(109, 31), QColor(Qt::red));
    QCOMPARE(colorSwatch(canvasSize, QColor(), Qt::red).pixelColor(50, 16), QColor(Qt::white));
    QCOMPARE(solidSwatch(canvasSize, QColor()).pixelColor(50, 16), QColor(Qt::transparent));
}

void TestPreviews::iconsKeepTheirPixels()
{
    QImage image = gradientSwatch(canvasSize, QColor(1, 2, 3, 4), Qt::red);
    QCOMPARE(unpackImage(packImage(image), canvasSize), image);
    QVERIFY(unpackImage(packImage(image), QSize(110, 33)).isNull());
    QVERIFY(unpackImage("garbage", canvasSize).isNull());
    QCOMPARE(previewIcon(image).pixmap(canvasSize).toImage().convertToFormat(image.format()), image);
    QCOMPARE(previewIcon(image).actualSize(QSize(55, 32)), QSize(55, 16));

    int drawn = 0;
    const QIcon icon = previewIcon(canvasSize, [&] {
        ++drawn;
        return image;
    });
    const QVariant copy = icon; // as an item of a list holds it
    QCOMPARE(icon.actualSize(QSize(200, 200)), canvasSize);
    QCOMPARE(drawn, 0);
    QCOMPARE(copy.value<QIcon>().pixmap(canvasSize).toImage().convertToFormat(image.format()), image);
    QCOMPARE(icon.pixmap(canvasSize).size(), canvasSize);
    QCOMPARE(drawn, 1);
}

QTEST_MAIN(TestPreviews)
#include "tst_previews.moc"
