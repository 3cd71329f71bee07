#include "settings/colorelements.h"

#include "settings/colortexts.h"
#include "settings/updatevalues.h"

std::vector<ColorElement> colorElements()
{
    std::vector<ColorElement> elements;
    for (const ThemeKey &key : themeKeys) {
        if (key.kind != KeyKind::Color)
            continue;
        if (QLatin1String(key.name).endsWith(QLatin1Char('2')))
            elements.back().push_back(&key);
        else
            elements.push_back({&key});
    }
    return elements;
}

QStringList storedColors(const ColorElement &element, const QazSettings &settings)
{
    QStringList colors;
    for (const ThemeKey *key : element)
        colors += currentColorText(storedText(&settings, *key), QLatin1String(key->defaultText));
    return colors;
}

void saveColors(const ColorElement &element, const QStringList &colors, QazSettings *settings)
{
    int i = 0;
    for (const ThemeKey *key : element)
        updateStringValue(settings, QLatin1String(key->name), QLatin1String(key->defaultText),
                          colors.at(i++));
}

QString colorItemData(const ColorElement &element, const QStringList &colors)
{
    return QLatin1String(element.front()->name) + QLatin1Char(',') + colors.join(QLatin1Char(','));
}
