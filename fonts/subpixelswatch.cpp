#include "fonts/subpixelswatch.h"

#include <iterator>

namespace {

// clang-format off
constexpr const char *rgbSwatch[] = {
    "12 12 3 1", "r c #e01b24", "g c #26a269", "b c #1a5fb4",
    "rrrrggggbbbb", "rrrrggggbbbb", "rrrrggggbbbb", "rrrrggggbbbb",
    "rrrrggggbbbb", "rrrrggggbbbb", "rrrrggggbbbb", "rrrrggggbbbb",
    "rrrrggggbbbb", "rrrrggggbbbb", "rrrrggggbbbb", "rrrrggggbbbb"};

constexpr const char *bgrSwatch[] = {
    "12 12 3 1", "r c #e01b24", "g c #26a269", "b c #1a5fb4",
    "bbbbggggrrrr", "bbbbggggrrrr", "bbbbggggrrrr", "bbbbggggrrrr",
    "bbbbggggrrrr", "bbbbggggrrrr", "bbbbggggrrrr", "bbbbggggrrrr",
    "bbbbggggrrrr", "bbbbggggrrrr", "bbbbggggrrrr", "bbbbggggrrrr"};

constexpr const char *verticalRgbSwatch[] = {
    "12 12 3 1", "r c #e01b24", "g c #26a269", "b c #1a5fb4",
    "rrrrrrrrrrrr", "rrrrrrrrrrrr", "rrrrrrrrrrrr", "rrrrrrrrrrrr",
    "gggggggggggg", "gggggggggggg", "gggggggggggg", "gggggggggggg",
    "bbbbbbbbbbbb", "bbbbbbbbbbbb", "bbbbbbbbbbbb", "bbbbbbbbbbbb"};

constexpr const char *verticalBgrSwatch[] = {
    "12 12 3 1", "r c #e01b24", "g c #26a269", "b c #1a5fb4",
    "bbbbbbbbbbbb", "bbbbbbbbbbbb", "bbbbbbbbbbbb", "bbbbbbbbbbbb",
    "gggggggggggg", "gggggggggggg", "gggggggggggg", "gggggggggggg",
    "rrrrrrrrrrrr", "rrrrrrrrrrrr", "rrrrrrrrrrrr", "rrrrrrrrrrrr"};
// clang-format on

constexpr const char *const *swatches[] = {nullptr, rgbSwatch, bgrSwatch, verticalRgbSwatch,
                                           verticalBgrSwatch};
static_assert(std::size(swatches) == std::size_t(SubPixelOrder::Count));

} // namespace

QPixmap subPixelSwatch(SubPixelOrder order)
{
    const char *const *swatch = swatches[std::size_t(order)];
    return swatch ? QPixmap(swatch) : QPixmap();
}
