#include "pages/theme/swatches.h"

#include <QPainter>

namespace {

QPixmap sharpPixmap(int width, int height, const QColor &color, qreal ratio)
{
    QPixmap pixmap(QSize(width, height) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

QPixmap outlined(QPixmap pixmap, const QColor &color)
{
    const QSize size = pixmap.size() / pixmap.devicePixelRatio();
    QPainter painter(&pixmap);
    painter.setPen(color);
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    return pixmap;
}

QPixmap colorButtonPixmap(const QColor &color, const QColor &frame, int height, qreal ratio)
{
    return outlined(sharpPixmap(3 * height, height, color, ratio), frame);
}

QPixmap ellipsisPixmap(const QColor &color, int edge, qreal ratio)
{
    constexpr int dots = 3;
    QPixmap pixmap = sharpPixmap(edge, edge, Qt::transparent, ratio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    for (int dot = 0; dot < dots; ++dot)
        painter.drawEllipse(QPointF(edge * (dot + 0.5) / dots, edge / 2.0), edge / 10.0, edge / 10.0);
    return pixmap;
}
