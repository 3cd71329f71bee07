#pragma once

#include <QColor>
#include <QPixmap>

// Pictures are sharp on a screen of \a ratio device pixels a pixel; lengths are in pixels of the window.

/// \a pixmap with a thin frame of \a color just inside of its edges: it shows also where the colours are those around it.
QPixmap outlined(QPixmap pixmap, const QColor &color);

/// A framed swatch of \a color, \a height pixels high. A button with it shows its colour under every style; styles
/// are free to paint the button itself in colours of their own.
QPixmap colorButtonPixmap(const QColor &color, const QColor &frame, int height, qreal ratio);

/// Three dots in a square of \a edge pixels, for a button that has no text and opens a dialog.
QPixmap ellipsisPixmap(const QColor &color, int edge, qreal ratio);
