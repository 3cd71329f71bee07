#include "fonts/subpixelswatch.h"

#include <QPainter>

QPixmap subPixelSwatch(SubPixelOrder order)
{
    constexpr int extent = 12;
    constexpr int stripe = extent / 3;
    const QColor colors[] = {0xe01b24, 0x26a269, 0x1a5fb4};
    const bool isVertical = order == SubPixelOrder::VerticalRgb || order == SubPixelOrder::VerticalBgr;
    const bool beginsWithRed = order == SubPixelOrder::Rgb || order == SubPixelOrder::VerticalRgb;
    QPixmap swatch(extent, extent);
    QPainter painter(&swatch);
    for (int i = 0; i < 3; ++i)
        painter.fillRect(isVertical ? QRect(0, i * stripe, extent, stripe)
                                    : QRect(i * stripe, 0, stripe, extent),
                         colors[beginsWithRed ? i : 2 - i]);
    return swatch;
}
