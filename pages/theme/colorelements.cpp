#include "pages/theme/colorelements.h"

#include "platform/qazsettings.h"
#include "settings/updatevalues.h"

#include <algorithm>
#include <cstring>

namespace {

struct OldColorName {
    const char *name;
    const char *color;
};

// The wallpaper page has a table of its own, which differs on purpose in "qvblue" and "qvlightray".
constexpr OldColorName oldColorNames[] = {{"qvgray", "#c0c0c0"},        {"qvgrey", "#c0c0c0"},
                                          {"qvdarkgray", "#606060"},    {"qvdarkgrey", "#606060"},
                                          {"qvlightray", "light gray"}, {"qvblue", "#000080"},
                                          {"qvlightblue", "#a6caf0"},   {"qvroyalblue", "#3a6ea5"},
                                          {"qvyellow", "#f5db95"},      {"qvlightyellow", "#ffffe1"}};

} // namespace

std::vector<const ColorElement *> colorElementsByKey()
{
    std::vector<const ColorElement *> elements;
    for (const ColorElement &element : colorElements)
        elements.push_back(&element);
    std::sort(elements.begin(), elements.end(), [](const ColorElement *left, const ColorElement *right) {
        return std::strcmp(left->key, right->key) < 0;
    });
    return elements;
}

bool isGradient(const ColorElement &element)
{
    return element.secondDefault != nullptr;
}

QStringList colorKeys(const ColorElement &element)
{
    const QString key = QLatin1String(element.key);
    return isGradient(element) ? QStringList{key, key + QLatin1Char('2')} : QStringList{key};
}

QStringList defaultColors(const ColorElement &element)
{
    const QString color = QLatin1String(element.defaultColor);
    return isGradient(element) ? QStringList{color, QLatin1String(element.secondDefault)}
                               : QStringList{color};
}

QString currentColorText(const QString &stored, const QString &defaultColor)
{
    if (stored == QLatin1String("Qt") || stored == QLatin1String("qt"))
        return defaultColor;
    for (const OldColorName &old : oldColorNames) {
        if (stored == QLatin1String(old.name))
            return QLatin1String(old.color);
    }
    return stored;
}

QStringList storedColors(const ColorElement &element, const QazSettings &settings)
{
    const QStringList keys = colorKeys(element);
    QStringList colors = defaultColors(element);
    for (int i = 0; i < keys.size(); ++i)
        colors[i] = currentColorText(settings.value(keys.at(i), colors.at(i)).toString(), colors.at(i));
    return colors;
}

void saveColors(const ColorElement &element, const QStringList &colors, QazSettings *settings)
{
    const QStringList keys = colorKeys(element);
    const QStringList defaults = defaultColors(element);
    for (int i = 0; i < keys.size(); ++i)
        updateStringValue(settings, keys.at(i), defaults.at(i), colors.at(i));
}

QString colorItemData(const QString &key, const QStringList &colors)
{
    return key + QLatin1Char(',') + colors.join(QLatin1Char(','));
}
