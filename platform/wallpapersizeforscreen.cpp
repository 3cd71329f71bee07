#include "platform/wallpapersizeforscreen.h"

#include <QtGlobal>

#include <algorithm>
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

} // namespace

void WallpaperSizeForScreen(int width, int height, int *w1, int *h1, int *w2, int *h2)
{
    const auto distance = [ratio = double(qMax(1, width)) / qMax(1, height)](const StandardSize &size) {
        return std::abs(double(size.ratioWidth) / size.ratioHeight - ratio);
    };
    const auto nearer = [distance](const auto &size, const auto &other) {
        return distance(size) < distance(other);
    };
    const StandardSize &size = *std::min_element(std::begin(standardSizes), std::end(standardSizes), nearer);
    *w1 = size.width;
    *h1 = size.height;
    *w2 = size.ratioWidth;
    *h2 = size.ratioHeight;
}
