#pragma once

#include "settings/themekeys.h"

#include <QStringList>

#include <vector>

class QazSettings;

/// A desktop element that has a colour, or a gradient between two: the rows of its one or two keys.
using ColorElement = std::vector<const ThemeKey *>;

/// All elements, in the order of their keys, in which they are shown and saved.
std::vector<ColorElement> colorElements();

/// The colours of \a element in \a settings as they are shown: current texts, as many as it has keys.
QStringList storedColors(const ColorElement &element, const QazSettings &settings);

/// Stores and announces those of \a colors, as many as \a element has keys, that differ from \a settings.
void saveColors(const ColorElement &element, const QStringList &colors, QazSettings *settings);

/// The data of an element's entry: the key and its colours, joined by commas.
QString colorItemData(const ColorElement &element, const QStringList &colors);
