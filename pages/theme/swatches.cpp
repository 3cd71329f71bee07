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
    const QRect whole(QPoint(), pixmap.size() / pixmap.devicePixelRatio());
    QPainter painter(&pixmap);
    painter.setClipRegion(QRegion(whole) - whole.adjusted(1, 1, -1, -1));
    painter.fillRect(whole, color);
    return pixmap;
}

QPixmap colorButtonPixmap(const QColor &color, const QColor &frame, int height, qreal ratio)
{
    return outlined(sharpPixmap(3 * height, height, color, ratio), frame);
}

QPixmap ellipsisPixmap(const QColor &color, int edge, qreal ratio)
{
    QPixmap pixmap = sharpPixmap(edge, edge, Qt::transparent, ratio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    for (const int sixths : {1, 3, 5})
        painter.drawEllipse(QPointF(edge * sixths / 6.0, edge / 2.0), edge / 10.0, edge / 10.0);
    return pixmap;
}
