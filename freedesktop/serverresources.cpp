#include "freedesktop/serverresources.h"

#include "base/chandle.h"

#include <QX11Info>

#include <memory>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

ServerResource readProperty(Display *display, Window window, Atom property)
{
    constexpr long wholeText = 0x1fffffff; // in units of four bytes
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char *bytes = nullptr;
    XGetWindowProperty(display, window, property, 0, wholeText, False, AnyPropertyType, &type, &format,
                       &count, &rest, &bytes);
    const std::unique_ptr<unsigned char, Release<XFree>> owner(bytes);
    if (type == 0 || format != 8)
        return {window, property, XA_STRING, {}};
    return {window, property, type, QByteArray(reinterpret_cast<const char *>(bytes), int(count))};
}

void writeProperty(Display *display, const ServerResource &resource)
{
    if (resource.text.isEmpty())
        XDeleteProperty(display, resource.window, resource.property);
    else
        XChangeProperty(display, resource.window, resource.property, resource.type, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char *>(resource.text.constData()),
                        resource.text.size());
}

} // namespace

std::vector<ServerResource> readServerResources()
{
    std::vector<ServerResource> resources;
    if (!QX11Info::isPlatformX11())
        return resources;
    Display *display = QX11Info::display();
    resources.push_back(readProperty(display, RootWindow(display, 0), XA_RESOURCE_MANAGER));
    const Atom ofScreen = XInternAtom(display, "SCREEN_RESOURCES", False);
    for (int screen = 0; screen < ScreenCount(display); ++screen)
        resources.push_back(readProperty(display, RootWindow(display, screen), ofScreen));
    return resources;
}

void writeServerResources(const std::vector<ServerResource> &wanted)
{
    if (!QX11Info::isPlatformX11())
        return;
    Display *display = QX11Info::display();
    for (const ServerResource &resource : wanted) {
        if (resource.text != readProperty(display, resource.window, resource.property).text)
            writeProperty(display, resource);
    }
    XSync(display, False);
}
