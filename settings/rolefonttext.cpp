#include "settings/rolefonttext.h"

#include <QFontInfo>

QString fontToText(const QFont &font)
{
    const QFontInfo resolved(font);
    // A size beyond the font engine's limits resolves to nothing; then the request is kept.
    const bool isResolved = resolved.pointSize() > 0;
    QString text = (isResolved ? resolved.family() : font.family()) + QLatin1Char('-')
                   + QString::number(isResolved ? resolved.pointSize() : font.pointSize());
    text += resolved.weight() < 51 ? QLatin1String(":normal") : QLatin1String(":bold");
    if (resolved.italic())
        text += QLatin1String(":italic");
    return text;
}

QFont textToFont(const QString &text)
{
    const QString familyAndSize = text.section(QLatin1Char(':'), 0, 0);
    const QString family = familyAndSize.section(QLatin1Char('-'), 0, 0);
    const int size = familyAndSize.section(QLatin1Char('-'), 1, 1).toInt();
    const bool bold = text.section(QLatin1Char(':'), 1, 1) == QLatin1String("bold");
    const bool italic = text.section(QLatin1Char(':'), 2, 2) == QLatin1String("italic");
    return QFont(family, size, bold ? QFont::Bold : QFont::Normal, italic);
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
    const int open = family.indexOf(QLatin1Char('['));
    if (open < 0)
        return family.trimmed();
    const int close = family.indexOf(QLatin1Char(']'), open);
    const QString name = family.left(open).trimmed();
    const QString foundry = family.mid(open + 1, close < 0 ? -1 : close - open - 1).trimmed();
    return foundry.isEmpty() ? name : name + QLatin1Char('[') + foundry + QLatin1Char(']');
}
