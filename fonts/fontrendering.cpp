#include "fonts/fontrendering.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double tolerance = 0.0001;
constexpr double pointsPerInch = 72;

struct Name {
    const char *file;
    const char *display;
};

// clang-format off
constexpr Name subPixelNames[] = {
    {"none", QT_TRANSLATE_NOOP("FontRendering", "None")},
    {"rgb",  QT_TRANSLATE_NOOP("FontRendering", "RGB")},
    {"bgr",  QT_TRANSLATE_NOOP("FontRendering", "BGR")},
    {"vrgb", QT_TRANSLATE_NOOP("FontRendering", "Vertical RGB")},
    {"vbgr", QT_TRANSLATE_NOOP("FontRendering", "Vertical BGR")}};
static_assert(std::size(subPixelNames) == std::size_t(SubPixelOrder::Count));

constexpr Name hintNames[] = {
    {nullptr,      nullptr}, // not set
    {"hintnone",   QT_TRANSLATE_NOOP("FontRendering", "None")},
    {"hintslight", QT_TRANSLATE_NOOP("FontRendering", "Slight")},
    {"hintmedium", QT_TRANSLATE_NOOP("FontRendering", "Medium")},
    {"hintfull",   QT_TRANSLATE_NOOP("FontRendering", "Full")}};
static_assert(std::size(hintNames) == std::size_t(HintStyle::Count));
// clang-format on

template<std::size_t count>
const Name &nameAt(const Name (&names)[count], int index, int fallback)
{
    return names[index >= 0 && index < int(count) && names[index].file ? index : fallback];
}

template<std::size_t count>
int indexOf(const Name (&names)[count], const QString &file)
{
    const auto *found = std::find_if(std::begin(names), std::end(names), [&file](const Name &name) {
        return name.file && file == QLatin1String(name.file);
    });
    return found == std::end(names) ? 0 : int(found - std::begin(names));
}

bool areEqual(double one, double other)
{
    return std::abs(one - other) < tolerance;
}

ExcludeRange converted(const ExcludeRange &range, double factor)
{
    return {std::trunc(range.from * factor + 0.5), std::trunc(range.to * factor + 0.5)};
}

} // namespace

bool ExcludeRange::isZero() const
{
    return equals({});
}

bool ExcludeRange::equals(const ExcludeRange &other) const
{
    return areEqual(from, other.from) && areEqual(to, other.to);
}

QString FontRendering::fileName(SubPixelOrder order)
{
    return QLatin1String(nameAt(subPixelNames, int(order), int(SubPixelOrder::None)).file);
}

QString FontRendering::fileName(HintStyle style)
{
    return QLatin1String(nameAt(hintNames, int(style), int(HintStyle::Medium)).file);
}

QString FontRendering::displayName(SubPixelOrder order)
{
    return tr(nameAt(subPixelNames, int(order), int(SubPixelOrder::None)).display);
}

QString FontRendering::displayName(HintStyle style)
{
    return tr(nameAt(hintNames, int(style), int(HintStyle::Medium)).display);
}

SubPixelOrder FontRendering::subPixelOrder(const QString &fileName)
{
    return SubPixelOrder(indexOf(subPixelNames, fileName));
}

HintStyle FontRendering::hintStyle(const QString &fileName)
{
    return HintStyle(indexOf(hintNames, fileName));
}

bool bringIntoAgreement(ExcludeRange *points, ExcludeRange *pixels, double dpi)
{
    if (pixels->isZero()) {
        if (points->isZero())
            return false;
        const ExcludeRange wanted = converted(*points, dpi / pointsPerInch);
        if (wanted.equals(*pixels))
            return false;
        *pixels = wanted;
        return true;
    }
    *points = converted(*pixels, pointsPerInch / dpi);
    return true;
}
