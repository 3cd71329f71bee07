#pragma once

#include <QByteArray>

/// \a text with `\\`, `\n`, `\r` and `\t` for a backslash, line breaks and tabs: one line without a tab.
QByteArray escaped(const QByteArray &text);

/// What \a text stands for; `\s` is a blank. An unknown escape is kept as it stands.
QByteArray unescaped(const QByteArray &text);
