#include "platform/finddpi.h"

#include <X11/Xlib.h>

namespace {

constexpr double millimetresPerInch = 25.4;

double dotsPerInch(int pixels, int millimetres)
{
    return millimetres > 0 ? pixels * millimetresPerInch / millimetres : 0.0;
}

} // namespace

double FindDPI(Display *display, int screen, double *vertical)
{
    if (vertical)
        *vertical = display ? dotsPerInch(DisplayHeight(display, screen), DisplayHeightMM(display, screen))
                            : 0.0;
    return display ? dotsPerInch(DisplayWidth(display, screen), DisplayWidthMM(display, screen)) : 0.0;
}
