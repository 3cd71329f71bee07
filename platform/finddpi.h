#pragma once

struct _XDisplay;
using Display = _XDisplay;

/// The horizontal resolution of \a screen in dots per inch, its pixels over its physical size. 0 when the
/// server states no size.
double FindDPI(Display *display, int screen);
