#include "pages/theme/themesettings.h"

#include "platform/qazicontheme.h"

QString defaultSize(const SizeElement &element, double dpi)
{
    if (int(dpi) > 75 && dpi < 120)
        return QString::number(QazIconTheme::GetIconSizeForDPI(dpi, element.iconKind) + element.margin);
    return QLatin1String(element.key->defaultText);
}
