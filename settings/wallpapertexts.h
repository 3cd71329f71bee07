#pragma once

#include <QSize>
#include <QString>

/// How a wallpaper is fitted to the screen; the order is the position combo box's.
enum class Fit { Center, Tile, Stretch };

/// The stored word of \a fit, and back; an unknown word centres.
QString wordFromFit(Fit fit);
Fit fitFromWord(const QString &word);

/// Whether a wallpaper text is meant as a colour ("#RRGGBB"), valid or not.
bool isColorText(const QString &text);

/// The file of the wallpaper that is called \a name, for a screen of \a screenSize pixels; empty when there is none. An
/// SVG is converted first, if it \a mayConvert, and else left out unless it was before.
QString wallpaperNamed(const QString &name, const QSize &screenSize, bool mayConvert = true);
