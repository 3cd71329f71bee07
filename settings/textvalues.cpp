#include "settings/textvalues.h"

bool countsAsTrue(const QString &text)
{
    return text.contains(QLatin1String("rue"));
}

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}
