#pragma once

#include <QString>

/// Whether a stored text counts as true: it contains "rue", case-sensitively. So "true" and "True" are true;
/// "TRUE", "1" and "yes" are not. The window manager reads the file in the same way.
inline bool countsAsTrue(const QString &text)
{
    return text.contains(QLatin1String("rue"));
}

/// The stored form of \a value, "true" or "false".
inline QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}
