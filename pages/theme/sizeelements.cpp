#include "pages/theme/sizeelements.h"

#include "platform/qazicontheme.h"

QString defaultSize(const SizeElement &element, double dpi)
{
    if (int(dpi) > 75 && dpi < 120)
        return QString::number(QazIconTheme::GetIconSizeForDPI(dpi, element.iconKind) + element.margin);
    return QLatin1String(element.defaultSize);
}

QStringList sizeChoices(const SizeElement &element)
{
    return QString::fromLatin1(element.choices).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString sizeItemText(const QString &value, const QString &name)
{
    return value + QLatin1String(",   ") + name;
}

QString sizeItemValue(const QString &itemText)
{
    return itemText.section(QLatin1Char(','), 0, 0).trimmed();
}

QString sizeItemName(const QString &itemText)
{
    return itemText.section(QLatin1Char(','), 1).trimmed();
}
