#include "platform/finddpi.h"

#include <X11/Xlib.h>

double FindDPI(Display *display, int screen)
{
    constexpr double millimetresPerInch = 25.4;
    const int millimetres = display ? DisplayWidthMM(display, screen) : 0;
    return millimetres ? DisplayWidth(display, screen) * millimetresPerInch / millimetres : 0.0;
}
