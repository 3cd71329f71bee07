#include "freedesktop/windowproperty.h"

#include "base/chandle.h"

#include <X11/Xlib.h>

WindowProperty windowProperty(Display *display, Window window, Atom property, int format)
{
    constexpr long wholeProperty = 0x1fffffff; // in units of four bytes
    Atom type;
    int actualFormat{};
    unsigned long count;
    unsigned long rest;
    unsigned char *data = nullptr;
    XGetWindowProperty(display, window, property, 0, wholeProperty, False, AnyPropertyType, &type,
                       &actualFormat, &count, &rest, &data);
    const std::unique_ptr<unsigned char, Release<XFree>> owner(data);
    if (actualFormat != format)
        return {};
    return {type, QByteArray(reinterpret_cast<const char *>(data),
                             int(count * (format == 8 ? sizeof(char) : sizeof(long))))};
}
