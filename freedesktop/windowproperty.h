#pragma once

#include <QByteArray>

struct _XDisplay;

/// A property of a window of the X server.
struct WindowProperty {
    unsigned long type = 0; ///< atom
    QByteArray bytes;       ///< items of 32 bits as Xlib hands them out: as longs
};

/// The whole \a property (an atom) of \a window; null bytes when it has none, or one that is not of \a format (8 or 32).
WindowProperty windowProperty(_XDisplay *display, unsigned long window, unsigned long property, int format);
