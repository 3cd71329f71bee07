#pragma once

#include <QString>

/// Whether a stored text counts as true: it contains "rue", case-sensitively. So "true" and "True" are true;
/// "TRUE", "1" and "yes" are not. The window manager reads the file in the same way.
bool countsAsTrue(const QString &text);

/// The stored form of \a value, "true" or "false".
QString boolText(bool value);
