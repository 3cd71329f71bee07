#include "platform/wallpapersizeforscreen.h"

#include <QSize>

#include <algorithm>
#include <cmath>
#include <iterator>

void WallpaperSizeForScreen(int width, int height, int *w1, int *h1, int *w2, int *h2)
{
    struct StandardSize {
        QSize ratio;
        QSize pixels;
    };
    static constexpr StandardSize standardSizes[] = {{{5, 4}, {1280, 1024}},  {{4, 3}, {1600, 1200}},
                                                     {{3, 2}, {2160, 1440}},  {{16, 10}, {1920, 1200}},
                                                     {{16, 9}, {1920, 1080}}, {{21, 9}, {2560, 1080}}};
    const double wanted = double(qMax(1, width)) / qMax(1, height);
    const auto distance = [wanted](const QSize &ratio) {
        return std::abs(double(ratio.width()) / ratio.height() - wanted);
    };
    const auto *size = std::min_element(std::begin(standardSizes), std::end(standardSizes),
                                        [distance](const StandardSize &one, const StandardSize &other) {
                                            return distance(one.ratio) < distance(other.ratio);
                                        });
    *w1 = size->pixels.width();
    *h1 = size->pixels.height();
    *w2 = size->ratio.width();
    *h2 = size->ratio.height();
}
