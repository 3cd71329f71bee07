#include "pages/theme/buttonicons.h"

#include <QPainter>

QPixmap colorButtonPixmap(const QColor &color, const QColor &frame, int height)
{
    QPixmap pixmap(3 * height, height);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(frame);
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    return pixmap;
}

QPixmap ellipsisPixmap(const QColor &color, int edge)
{
    constexpr int dots = 3;
    QPixmap pixmap(edge, edge);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    for (int dot = 0; dot < dots; ++dot)
        painter.drawEllipse(QPointF(edge * (dot + 0.5) / dots, edge / 2.0), edge / 10.0, edge / 10.0);
    return pixmap;
}
