#pragma once

#include <QString>

class QazSettings;
struct ThemeKey;

/// The text of \a key in \a store, or its default.
QString storedText(const QazSettings *store, const ThemeKey &key);

// Each operation compares the stored value of a key, read with the default text, with the new one. Only when
// they differ it stores the new text and announces it to the window manager. It returns whether they differed.

/// Stores "true" or "false"; the stored value counts as true by countsAsTrue().
bool updateBoolValue(QazSettings *store, const QString &key, const QString &defaultText, bool value);

/// Stores decimal text; a stored text that is no number counts as 0.
bool updateIntValue(QazSettings *store, const QString &key, const QString &defaultText, int value);

/// Stores the text itself.
bool updateStringValue(QazSettings *store, const QString &key, const QString &defaultText,
                       const QString &value);
