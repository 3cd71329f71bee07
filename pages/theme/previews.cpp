#include "pages/theme/previews.h"

#include <QPainter>

namespace {

constexpr int buttonMargin = 5; // right of the close button
constexpr int closeGap = 2;     // between maximise and close; there is none between minimise and maximise

/// Copies images to a canvas that is transparent before.
class CanvasPainter : public QPainter
{
public:
    explicit CanvasPainter(QImage *canvas)
    {
        canvas->fill(Qt::transparent);
        begin(canvas);
        setCompositionMode(CompositionMode_Source);
    }

    /// Fills \a area with copies of \a image laid out from the canvas's origin.
    void tile(const QRect &area, const QImage &image)
    {
        // The image may be far larger than the canvas. Qt turns a negative width over.
        if (!area.isEmpty())
            fillRect(area, QBrush(image.copy(image.rect().intersected(window()))));
    }

    void drawReleasedButton(int x, int y, const QImage &button)
    {
        const QRect released(0, 0, button.width(), button.height() / 2);
        if (!released.isEmpty()) // for Qt the whole image
            drawImage(QPoint(x, y), button, released);
    }
};

} // namespace

QImage threeImagesPreview(const QSize &size, const QVector<QImage> &images)
{
    QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
    CanvasPainter painter(&canvas);
    int x = 0;
    for (const QImage &image : images) {
        painter.drawImage(x, size.height() / 2 - image.height() / 2, image);
        x += size.width() / 3;
    }
    return canvas;
}

QImage decorPreview(const QSize &size, const DecorImages &images)
{
    QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
    CanvasPainter painter(&canvas);
    const int width = size.width();
    const int top = images.topFrame.height();
    const int left = images.topLeftCorner.width();
    const int right = images.topRightCorner.width();
    painter.drawImage(0, 0, images.topLeftCorner);
    painter.drawImage(width - right, 0, images.topRightCorner);
    const int titleWidth = width - images.rightFrame.width() - 1;
    painter.tile(QRect(images.leftFrame.width(), top, titleWidth, images.title.height()), images.title);
    painter.tile(QRect(left, 0, width - left - right, top), images.topFrame);
    const int closeX = width - buttonMargin - images.closeButton.width();
    const int maximizeX = closeX - (images.maximizeButton.width() + closeGap);
    painter.drawReleasedButton(closeX, top, images.closeButton);
    painter.drawReleasedButton(maximizeX, top, images.maximizeButton);
    painter.drawReleasedButton(maximizeX - images.minimizeButton.width(), top, images.minimizeButton);
    return canvas;
}
