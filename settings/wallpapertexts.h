#pragma once

#include <QString>

/// How a wallpaper is fitted to the screen; the order is the position combo box's.
enum class Fit { Center, Tile, Stretch };

/// The stored word of \a fit, and back; an unknown word centres.
QString wordFromFit(Fit fit);
Fit fitFromWord(const QString &word);

/// Whether a wallpaper text is meant as a colour ("#RRGGBB"), valid or not.
bool isColorText(const QString &text);
