#include "pages/theme/previews.h"

#include <QPainter>
#include <QTest>

namespace {

const QSize canvasSize(110, 32);
const QColor glass(255, 0, 0, 51);

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
    QPainter(&image).fillRect(0, 0, width, height / 2, released);
    return image;
}

char letter(const QColor &color)
{
    const QVector<QColor> colors{Qt::transparent, Qt::red,   Qt::green, Qt::blue,   Qt::cyan,
                                 Qt::magenta,     Qt::white, Qt::gray,  Qt::yellow, glass};
    return "?-rgbcmwty/"[colors.indexOf(color) + 1];
}

/// The colours of some rows: "3r 2-" for three red pixels and two transparent ones; rows end with "|".
QByteArray runs(const QImage &image, std::initializer_list<int> rows)
{
    QByteArray runs;
    for (const int y : rows) {
        for (int x = 0, start = 0; x < image.width(); ++x) {
            const char here = letter(image.pixelColor(x, y));
            if (x + 1 < image.width() && letter(image.pixelColor(x + 1, y)) == here)
                continue;
            runs += QByteArray::number(x + 1 - start) + here + (x + 1 < image.width() ? ' ' : '|');
            start = x + 1;
        }
    }
    return runs;
}

} // namespace

class TestPreviews : public QObject
{
    Q_OBJECT
private slots:
    void threeImagesStandSideBySide()
    {
        const QImage preview = threeImagesPreview(canvasSize,
                                                  {filled(4, 7, Qt::red), filled(10, 40, Qt::green), {}});
        // 110 / 3 = 36 pixels for each; the first begins at 32 / 2 - 7 / 2 = 13
        QCOMPARE(runs(preview, {12, 13, 19, 20}),
                 QByteArray("36- 10g 64-|4r 32- 10g 64-|4r 32- 10g 64-|36- 10g 64-|"));
        const QImage covered = threeImagesPreview({9, 4}, {filled(9, 4, Qt::blue), filled(3, 4, glass), {}});
        QCOMPARE(runs(covered, {2}), QByteArray("3b 3/ 3b|"));
    }

    void titleBarGeometry()
    {
        DecorImages images;
        images.title = filled(5, 20, Qt::gray);
        images.title.setPixelColor(1, 0, Qt::white);
        images.topFrame = filled(3, 4, Qt::yellow);
        images.topLeftCorner = filled(6, 10, Qt::cyan);
        images.topRightCorner = filled(7, 10, Qt::magenta);
        images.leftFrame = filled(2, 9, Qt::white);
        images.rightFrame = filled(3, 9, Qt::white);
        images.minimizeButton = button(8, 13, Qt::red);
        images.maximizeButton = button(9, 14, Qt::green);
        images.closeButton = button(10, 12, Qt::blue);
        const QImage preview = decorPreview(canvasSize, images);
        QCOMPARE(runs(preview, {0, 3}), QByteArray("6c 97y 7m|6c 97y 7m|"));
        // The title is 110 - 3 - 1 pixels wide and covers what it meets.
        const QByteArray buttons = "2c 74t 8r 9g 2t 10b 3t 2m|";
        QCOMPARE(runs(preview, {4, 9, 10}), buttons + buttons + "2- 82t 9g 15t 2-|");
        // It is laid out from the canvas's origin: the tile's first row is row 20, its second column 6 and 11.
        QVERIFY2(runs(preview, {20}).startsWith("2- 4t 1w 4t 1w 4t"), runs(preview, {20}).constData());
        QCOMPARE(runs(preview, {23, 24}), QByteArray("2- 106t 2-|110-|"));
    }

    void oddSizes()
    {
        for (const QSize &size : {QSize(1, 1), QSize(10000, 3000)}) {
            const QImage red = filled(size.width(), size.height(), Qt::red);
            const QImage preview = decorPreview(canvasSize, {red, red, red, red, red, red, red, red, red});
            // Half of one row is no row: buttons of one pixel are not drawn.
            QCOMPARE(runs(preview, {2}), QByteArray(size.height() == 1 ? "110-|" : "110r|"));
            QCOMPARE(runs(threeImagesPreview(canvasSize, {red, red, red}), {16}).left(2),
                     QByteArray(size.height() == 1 ? "1r" : "11"));
        }
    }
};

QTEST_MAIN(TestPreviews)
#include "tst_previews.moc"
