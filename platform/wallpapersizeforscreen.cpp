#include "platform/wallpapersizeforscreen.h"

#include <QtGlobal>

#include <cmath>
#include <iterator>

namespace {

struct StandardSize {
    int ratioWidth;
    int ratioHeight;
    int width;
    int height;
};

// clang-format off
constexpr StandardSize standardSizes[] = {
    { 5,  4, 1280, 1024},
    { 4,  3, 1600, 1200},
    { 3,  2, 2160, 1440},
    {16, 10, 1920, 1200},
    {16,  9, 1920, 1080},
    {21,  9, 2560, 1080},
};
// clang-format on

const StandardSize &nearestStandardSize(int width, int height)
{
    const double ratio = double(qMax(1, width)) / qMax(1, height);
    const StandardSize *nearest = std::begin(standardSizes);
    const auto distance = [ratio](const StandardSize &size) {
        return std::abs(double(size.ratioWidth) / size.ratioHeight - ratio);
    };
    for (const StandardSize &size : standardSizes) {
        if (distance(size) < distance(*nearest))
            nearest = &size;
    }
    return *nearest;
}

} // namespace

void WallpaperSizeForScreen(int width, int height, int *w1, int *h1, int *w2, int *h2)
{
    const StandardSize &size = nearestStandardSize(width, height);
    *w1 = size.width;
    *h1 = size.height;
    *w2 = size.ratioWidth;
    *h2 = size.ratioHeight;
}
