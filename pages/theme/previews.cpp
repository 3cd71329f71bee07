#include "pages/theme/previews.h"

#include <QLinearGradient>
#include <QPainter>

#include <cstring>

namespace {

constexpr QImage::Format canvasFormat = QImage::Format_ARGB32_Premultiplied;
constexpr int pixelSize = 4;
constexpr int buttonMargin = 5; // right of the close button
constexpr int closeGap = 2;     // between maximise and close; there is none between minimise and maximise

QImage transparentCanvas(const QSize &size)
{
    QImage canvas(size, canvasFormat);
    canvas.fill(Qt::transparent);
    return canvas;
}

/// The part of \a image that is needed, in the canvas's format: images may be far larger than the canvas.
QImage converted(const QImage &image, const QRect &part)
{
    const QImage cut = part == image.rect() ? image : image.copy(part);
    return cut.format() == canvasFormat ? cut : cut.convertToFormat(canvasFormat);
}

/// Copies \a part of \a image to \a target on the canvas.
void copyPart(QImage &canvas, const QPoint &target, const QImage &image, const QRect &part)
{
    const QPoint shift = target - part.topLeft();
    const QRect visible = part.intersected(image.rect()).translated(shift).intersected(canvas.rect());
    if (visible.isEmpty())
        return;
    const QImage source = converted(image, visible.translated(-shift));
    for (int row = 0; row < visible.height(); ++row)
        std::memcpy(canvas.scanLine(visible.y() + row) + visible.x() * pixelSize, source.constScanLine(row),
                    std::size_t(visible.width()) * pixelSize);
}

void copyImage(QImage &canvas, const QPoint &target, const QImage &image)
{
    copyPart(canvas, target, image, image.rect());
}

/// Fills \a area of the canvas with copies of \a image laid out from the canvas's origin.
void tile(QImage &canvas, const QRect &area, const QImage &image)
{
    const QRect visible = area.intersected(canvas.rect());
    if (area.isEmpty() || visible.isEmpty() || image.isNull()) // Qt turns a negative width over
        return;
    const QImage source = converted(image, image.rect().intersected(canvas.rect()));
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(source.constScanLine(y % image.height()));
        auto *to = reinterpret_cast<QRgb *>(canvas.scanLine(y));
        for (int x = visible.left(); x <= visible.right(); ++x)
            to[x] = from[x % image.width()];
    }
}

void copyReleasedButton(QImage &canvas, const QPoint &target, const QImage &button)
{
    copyPart(canvas, target, button, QRect(0, 0, button.width(), button.height() / 2));
}

} // namespace

QImage threeImagesPreview(const QSize &size, const QImage &first, const QImage &second, const QImage &third)
{
    QImage canvas = transparentCanvas(size);
    const int step = size.width() / 3;
    int x = 0;
    for (const QImage *image : {&first, &second, &third}) {
        copyImage(canvas, QPoint(x, size.height() / 2 - image->height() / 2), *image);
        x += step;
    }
    return canvas;
}

QImage decorPreview(const QSize &size, const DecorImages &images)
{
    QImage canvas = transparentCanvas(size);
    const int width = size.width();
    const int top = images.topFrame.height();
    copyImage(canvas, QPoint(0, 0), images.topLeftCorner);
    copyImage(canvas, QPoint(width - images.topRightCorner.width(), 0), images.topRightCorner);
    tile(canvas,
         QRect(images.leftFrame.width(), top, width - images.rightFrame.width() - 1, images.title.height()),
         images.title);
    tile(canvas,
         QRect(images.topLeftCorner.width(), 0,
               width - images.topLeftCorner.width() - images.topRightCorner.width(), top),
         images.topFrame);
    const int closeX = width - buttonMargin - images.closeButton.width();
    const int maximizeX = closeX - (images.maximizeButton.width() + closeGap);
    const int minimizeX = maximizeX - images.minimizeButton.width();
    copyReleasedButton(canvas, QPoint(closeX, top), images.closeButton);
    copyReleasedButton(canvas, QPoint(maximizeX, top), images.maximizeButton);
    copyReleasedButton(canvas, QPoint(minimizeX, top), images.minimizeButton);
    return canvas;
}

QImage solidSwatch(const QSize &size, const QColor &color)
{
    QImage canvas(size, canvasFormat);
    canvas.fill(color.isValid() ? color : QColor(Qt::transparent));
    return canvas;
}

QImage gradientSwatch(const QSize &size, const QColor &left, const QColor &right)
{
    QImage canvas = transparentCanvas(size);
    QLinearGradient gradient(0, 0, size.width(), 0);
    gradient.setColorAt(0.0, left);
    gradient.setColorAt(1.0, right);
    QPainter painter(&canvas);
    painter.fillRect(canvas.rect(), gradient);
    return canvas;
}

QImage colorSwatch(const QSize &size, const QColor &first, const QColor &second)
{
    if (first.isValid() && second.isValid())
        return gradientSwatch(size, first, second);
    return solidSwatch(size, first.isValid() ? first : QColor(Qt::white));
}
