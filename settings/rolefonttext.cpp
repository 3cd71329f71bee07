#include "settings/rolefonttext.h"

#include <QFontInfo>

QString fontToText(const QFont &font)
{
    const QFontInfo resolved(font);
    // A size beyond the font engine's limits resolves to nothing; then the request is kept.
    const bool isResolved = resolved.pointSize() > 0;
    QString text = (isResolved ? resolved.family() : font.family()) + QLatin1Char('-')
                   + QString::number(isResolved ? resolved.pointSize() : font.pointSize());
    text += resolved.bold() ? QLatin1String(":bold") : QLatin1String(":normal");
    if (resolved.italic())
        text += QLatin1String(":italic");
    return text;
}

QFont textToFont(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    const QStringList familyAndSize = parts.first().split(QLatin1Char('-'));
    const bool isBold = parts.value(1) == QLatin1String("bold");
    return QFont(familyAndSize.first(), familyAndSize.value(1).toInt(), isBold ? QFont::Bold : QFont::Normal,
                 parts.value(2) == QLatin1String("italic"));
}

bool isFontText(const QString &text)
{
    return text.count(QLatin1Char(':')) == 2
           || (text.count(QLatin1Char('-')) == 1 && !text.contains(QLatin1Char('*')));
}

bool isXlfdName(const QString &text)
{
    const int dashes = text.count(QLatin1Char('-'));
    return dashes == 14 || (dashes > 0 && text.contains(QLatin1Char('*')));
}

QFont storedRoleFont(const QString &stored, const QFont &defaultFont)
{
    return isFontText(stored) && !isXlfdName(stored) ? textToFont(stored) : defaultFont;
}

QString familyDisplayName(const QString &family)
{
    const QString name = family.section(QLatin1Char('['), 0, 0).trimmed();
    const QString foundry = family.section(QLatin1Char('['), 1).section(QLatin1Char(']'), 0, 0).trimmed();
    return foundry.isEmpty() ? name : name + QLatin1Char('[') + foundry + QLatin1Char(']');
}
