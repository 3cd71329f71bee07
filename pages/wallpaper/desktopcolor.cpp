#include "pages/wallpaper/desktopcolor.h"

namespace {

struct NamedColor {
    const char *name;
    const char *color;
};

// "qvlightray" is how the old scheme spelled it.
constexpr NamedColor oldScheme[] = {
    {"qvgray", "#c0c0c0"},        {"qvgrey", "#c0c0c0"},      {"qvdarkgray", "#606060"},
    {"qvdarkgrey", "#606060"},    {"qvlightray", "#dfdfdf"},  {"qvblue", "#0000ff"},
    {"qvlightblue", "#a6caf0"},   {"qvroyalblue", "#3a6ea5"}, {"qvyellow", "#f5db95"},
    {"qvlightyellow", "#ffffe1"},
};

} // namespace

QColor desktopColor(const QString &stored)
{
    for (const NamedColor &named : oldScheme) {
        if (stored == QLatin1String(named.name))
            return QColor(QLatin1String(named.color));
    }
    return QColor(stored);
}
