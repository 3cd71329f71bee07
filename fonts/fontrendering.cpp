#include "fonts/fontrendering.h"

#include <QCoreApplication>

#include <cmath>
#include <iterator>

namespace {

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
    {"hintmedium", QT_TRANSLATE_NOOP("FontRendering", "Medium")}, // not set
    {"hintnone",   QT_TRANSLATE_NOOP("FontRendering", "None")},
    {"hintslight", QT_TRANSLATE_NOOP("FontRendering", "Slight")},
    {"hintmedium", QT_TRANSLATE_NOOP("FontRendering", "Medium")},
    {"hintfull",   QT_TRANSLATE_NOOP("FontRendering", "Full")}};
static_assert(std::size(hintNames) == std::size_t(HintStyle::Count));
// clang-format on

template<std::size_t count>
int indexOf(const Name (&names)[count], const QString &file)
{
    int index = count - 1;
    while (index > 0 && file != QLatin1String(names[index].file))
        --index;
    return index;
}

ExcludeRange converted(const ExcludeRange &range, double factor)
{
    return {std::trunc(range.from * factor + 0.5), std::trunc(range.to * factor + 0.5)};
}

} // namespace

bool ExcludeRange::equals(const ExcludeRange &other) const
{
    constexpr double tolerance = 0.0001;
    return std::abs(from - other.from) < tolerance && std::abs(to - other.to) < tolerance;
}

QString FontRendering::fileName(SubPixelOrder order)
{
    return QLatin1String(subPixelNames[int(order)].file);
}

QString FontRendering::fileName(HintStyle style)
{
    return QLatin1String(hintNames[int(style)].file);
}

QString FontRendering::displayName(SubPixelOrder order)
{
    return QCoreApplication::translate("FontRendering", subPixelNames[int(order)].display);
}

QString FontRendering::displayName(HintStyle style)
{
    return QCoreApplication::translate("FontRendering", hintNames[int(style)].display);
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
        *pixels = converted(*points, dpi / pointsPerInch);
        return !pixels->isZero();
    }
    *points = converted(*pixels, pointsPerInch / dpi);
    return true;
}
