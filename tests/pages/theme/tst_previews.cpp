#include "pages/theme/previews.h"
#include "tests/support/testing.h"

namespace {

const QSize canvasSize(110, 32);
const QColor glass(255, 0, 0, 51);

using Parts = QVector<std::pair<QRect, QColor>>;

/// A picture of coloured rectangles, each over those before.
QImage picture(const QSize &size, const Parts &parts)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const auto &[rect, color] : parts)
        painter.fillRect(rect, color);
    return image;
}

QImage filled(int width, int height, const QColor &color)
{
    return picture({width, height}, {{{0, 0, width, height}, color}});
}

} // namespace

class TestPreviews : public QObject
{
    Q_OBJECT
private slots:
    void threeImagesStandSideBySide()
    {
        QCOMPARE(threeImagesPreview(canvasSize,
                                    {filled(4, 7, Qt::red), filled(40, 40, Qt::green), filled(3, 4, glass)}),
                 picture(canvasSize,
                         {{{0, 13, 4, 7}, Qt::red}, {{36, 0, 40, 32}, Qt::green}, {{72, 14, 3, 4}, glass}}));
    }

    void titleBarGeometry()
    {
        // Each button's upper half is the released one.
        const DecorImages images = {picture({5, 20}, {{{0, 0, 5, 20}, Qt::gray}, {{1, 0, 1, 1}, Qt::white}}),
                                    filled(3, 4, Qt::yellow),
                                    filled(6, 10, Qt::cyan),
                                    filled(7, 10, Qt::magenta),
                                    filled(2, 9, Qt::white),
                                    filled(3, 9, Qt::white),
                                    picture({8, 13}, {{{0, 0, 8, 6}, Qt::red}}),
                                    picture({9, 14}, {{{0, 0, 9, 7}, Qt::green}}),
                                    picture({10, 12}, {{{0, 0, 10, 6}, Qt::blue}})};
        Parts parts = {{{0, 0, 6, 10}, Qt::cyan},   {{103, 0, 7, 10}, Qt::magenta},
                       {{2, 4, 106, 20}, Qt::gray}, // 110 - 3 - 1 pixels wide
                       {{6, 0, 97, 4}, Qt::yellow}, {{95, 4, 10, 6}, Qt::blue},
                       {{84, 4, 9, 7}, Qt::green},  {{76, 4, 8, 6}, Qt::red}};
        for (int x = 6; x < 108; x += 5) // tiles are laid out from the canvas's origin
            parts += {{x, 20, 1, 1}, Qt::white};
        QCOMPARE(decorPreview(canvasSize, images), picture(canvasSize, parts));
    }

    void buttonsOfOnePixelAreNotDrawn()
    {
        const QImage red = filled(1, 1, Qt::red);
        QCOMPARE(decorPreview(canvasSize, {red, red, red, red, red, red, red, red, red}),
                 picture(canvasSize, {{{0, 0, 110, 1}, Qt::red}, {{1, 1, 108, 1}, Qt::red}}));
    }
};

QTEST_MAIN(TestPreviews)
#include "tst_previews.moc"
