#include "pages/wallpaper/wallpaperpreview.h"

#include <QPainter>

#include <algorithm>
#include <limits>

namespace {

constexpr int margin = 10;                                       // of the label, in both directions
constexpr int painterLimit = std::numeric_limits<qint16>::max(); // what is larger Qt scales to black

QSize scaledSize(const QSize &image, const QSize &label, const QSize &screen)
{
    const auto scaled = [](int length, int shown, int real) {
        return int(qint64(length) * shown / qMax(1, real));
    };
    return {scaled(image.width(), label.width(), screen.width()),
            scaled(image.height(), label.height(), screen.height())};
}

QImage fastScaled(const QImage &image, const QSize &size)
{
    if (std::max({image.width(), image.height(), size.width(), size.height()}) <= painterLimit)
        return image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    QImage result(size, QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        const int sourceY = int(qint64(y) * image.height() / size.height());
        for (int x = 0; x < result.width(); ++x)
            line[x] = image.pixel(int(qint64(x) * image.width() / size.width()), sourceY);
    }
    return result;
}

} // namespace

QImage drawPreview(const QImage &image, const PreviewLook &look)
{
    const QSize canvasSize = (look.label - QSize(margin, margin)).expandedTo(QSize(1, 1));
    if (!image.isNull() && look.fit == Fit::Stretch)
        return fastScaled(image, canvasSize);

    QImage canvas(canvasSize, QImage::Format_RGB32);
    canvas.fill(look.fill);
    if (image.isNull())
        return canvas;
    QPainter painter(&canvas);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QSize size = scaledSize(image.size(), look.label, look.screen);
    if (look.fit == Fit::Tile) {
        // A pattern of a few pixels scales to nothing.
        painter.fillRect(canvas.rect(), fastScaled(image, size.expandedTo(QSize(1, 1))));
    } else if (!size.isEmpty()) {
        painter.drawImage((canvas.width() - size.width()) / 2, (canvas.height() - size.height()) / 2,
                          fastScaled(image, size));
    }
    return canvas;
}
