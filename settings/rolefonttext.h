#pragma once

#include <QFont>

/// The role string form of \a font, such as Verdana-10:normal or Verdana-12:bold:italic. Family, size, weight
/// and slant are those of the font that the system resolves it to.
QString fontToText(const QFont &font);

/// The font of a role string. The family ends at its first dash, the size is what stands before the second:
/// a family with dashes is cut. A size that is no number gives the toolkit's own default size.
QFont textToFont(const QString &text);

/// Whether \a text has the role string form, with or without the weight.
bool isFontText(const QString &text);

/// Whether \a text is an X logical font name, possibly a pattern.
bool isXlfdName(const QString &text);

/// The font of a role whose stored text is \a stored: \a defaultFont for an empty text, one in no known form and an X
/// logical font name, as the toolkit has no core X fonts.
QFont storedRoleFont(const QString &stored, const QFont &defaultFont);

/// A raw family name for display: "Fixed [misc]" reads "Fixed[misc]".
QString familyDisplayName(const QString &family);
