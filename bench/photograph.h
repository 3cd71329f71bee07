#pragma once

#include <QImage>
#include <QRandomGenerator>

/// A 4K picture with as much detail as a photograph: coarse shapes under fine noise.
inline QImage photograph()
{
    QImage image(3840, 2160, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int noise = random.bounded(24);
            line[x] = qRgb((x * y / 9000 + noise) % 256, (y / 9 + noise) % 256, (x / 16 + noise) % 256);
        }
    }
    return image;
}
