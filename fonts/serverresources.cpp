#include "fonts/serverresources.h"

#include "base/chandle.h"

#include <QDataStream>
#include <QDateTime>
#include <QX11Info>

#include <memory>
#include <optional>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

std::optional<ServerResource> readProperty(Display *display, Window window, Atom property)
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
        return std::nullopt;
    return ServerResource{window, property, type,
                          QByteArray(reinterpret_cast<const char *>(bytes), int(count))};
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

/// Where the line that begins at \a begin ends, behind its newline. A backslash continues it on the next line,
/// but not in a comment.
int endOfEntry(const QByteArray &text, int begin)
{
    const bool comment = text.at(begin) == '!';
    int end = text.indexOf('\n', begin);
    while (!comment && end > begin) {
        int backslashes = 0;
        while (end - backslashes > begin && text.at(end - 1 - backslashes) == '\\')
            ++backslashes;
        if (backslashes % 2 == 0)
            break;
        end = text.indexOf('\n', end + 1);
    }
    return end < 0 ? text.size() : end + 1;
}

} // namespace

std::vector<ServerResource> readServerResources()
{
    std::vector<ServerResource> resources;
    if (!QX11Info::isPlatformX11())
        return resources;
    Display *display = QX11Info::display();
    if (const auto global = readProperty(display, RootWindow(display, 0), XA_RESOURCE_MANAGER))
        resources.push_back(*global);
    const Atom ofScreen = XInternAtom(display, "SCREEN_RESOURCES", False);
    for (int screen = 0; screen < ScreenCount(display); ++screen) {
        if (const auto local = readProperty(display, RootWindow(display, screen), ofScreen))
            resources.push_back(*local);
    }
    return resources;
}

void writeServerResources(const std::vector<ServerResource> &wanted)
{
    if (!QX11Info::isPlatformX11())
        return;
    Display *display = QX11Info::display();
    for (const ServerResource &resource : wanted) {
        const auto current = readProperty(display, resource.window, resource.property);
        if (resource.text != (current ? current->text : QByteArray()))
            writeProperty(display, resource);
    }
    XSync(display, False);
}

QByteArray withoutResource(const QByteArray &text, const QByteArray &name)
{
    QByteArray kept;
    for (int begin = 0; begin < text.size();) {
        const int end = endOfEntry(text, begin);
        const QByteArray entry = text.mid(begin, end - begin);
        const int colon = entry.indexOf(':');
        if (colon < 0 || entry.left(colon).trimmed() != name)
            kept += entry;
        begin = end;
    }
    return kept;
}

QByteArray xftDpiResource()
{
    if (!QX11Info::isPlatformX11())
        return {};
    // A connection keeps the resources of the time it was opened: the application's own would answer with old ones.
    const std::unique_ptr<Display, Release<XCloseDisplay>> display(
        XOpenDisplay(XDisplayString(QX11Info::display())));
    return display ? QByteArray(XGetDefault(display.get(), "Xft", "dpi")) : QByteArray();
}

void stampSettingsChange()
{
    if (!QX11Info::isPlatformX11())
        return;
    QByteArray stamp;
    QDataStream stream(&stamp, QIODevice::WriteOnly);
    stream << QDateTime::currentDateTime();
    Display *display = QX11Info::display();
    const QByteArray name = QByteArray("_QT_SETTINGS_TIMESTAMP_").append(XDisplayName(nullptr));
    const Atom atom = XInternAtom(display, name.constData(), False);
    XChangeProperty(display, QX11Info::appRootWindow(), atom, atom, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char *>(stamp.constData()), stamp.size());
    XFlush(display);
}
