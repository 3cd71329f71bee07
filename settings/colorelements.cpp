#include "settings/colorelements.h"

#include "platform/qazsettings.h"
#include "settings/colortexts.h"
#include "settings/updatevalues.h"

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
