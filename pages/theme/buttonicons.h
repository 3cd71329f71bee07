#pragma once

#include <QColor>
#include <QPixmap>

/// A framed swatch of \a color, \a height pixels high. A button with it shows its colour under every style;
/// styles are free to paint the button itself in colours of their own.
QPixmap colorButtonPixmap(const QColor &color, const QColor &frame, int height);

/// Three dots in a square of \a edge pixels, for a button that has no text and opens a dialog.
QPixmap ellipsisPixmap(const QColor &color, int edge);
