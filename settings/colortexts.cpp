#include "settings/colortexts.h"

#include <algorithm>
#include <iterator>

namespace {

struct OldColorName {
    const char *name; // "qvlightray" is how the old scheme spelled it
    const char *elementColor;
    const char *desktopColor;
};

// clang-format off
// The columns differ on purpose: the window manager draws elements in its own way.
constexpr OldColorName oldColorNames[] = {
    {"qvgray",        "#c0c0c0",    "#c0c0c0"},
    {"qvgrey",        "#c0c0c0",    "#c0c0c0"},
    {"qvdarkgray",    "#606060",    "#606060"},
    {"qvdarkgrey",    "#606060",    "#606060"},
    {"qvlightray",    "light gray", "#dfdfdf"},
    {"qvblue",        "#000080",    "#0000ff"},
    {"qvlightblue",   "#a6caf0",    "#a6caf0"},
    {"qvroyalblue",   "#3a6ea5",    "#3a6ea5"},
    {"qvyellow",      "#f5db95",    "#f5db95"},
    {"qvlightyellow", "#ffffe1",    "#ffffe1"}};
// clang-format on

const OldColorName *oldColorName(const QString &text)
{
    const auto old = std::find_if(std::begin(oldColorNames), std::end(oldColorNames),
                                  [&text](const auto &row) { return text == QLatin1String(row.name); });
    return old == std::end(oldColorNames) ? nullptr : old;
}

} // namespace

QString currentColorText(const QString &stored, const QString &defaultColor)
{
    if (stored == QLatin1String("Qt") || stored == QLatin1String("qt"))
        return defaultColor;
    const OldColorName *old = oldColorName(stored);
    return old ? QString::fromLatin1(old->elementColor) : stored;
}

QColor desktopColor(const QString &stored)
{
    const OldColorName *old = oldColorName(stored);
    return QColor(old ? QString::fromLatin1(old->desktopColor) : stored);
}
