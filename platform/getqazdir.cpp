#include "platform/getqazdir.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"

#include <QFile>
#include <QMap>
#include <QX11Info>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

/// The number of the current virtual desktop, counted from 1.
qint64 currentDesktop()
{
    qint64 number = 1;
    if (!QX11Info::isPlatformX11())
        return number;
    Display *display = QX11Info::display();
    const Atom name = XInternAtom(display, "_NET_CURRENT_DESKTOP", False);
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display), name, 0, 1, False, XA_CARDINAL, &type, &format,
                       &count, &rest, &data);
    // Xlib hands 32-bit items out as longs.
    if (type == XA_CARDINAL && format == 32 && count == 1)
        number += quint32(*reinterpret_cast<const unsigned long *>(data));
    XFree(data);
    return number;
}

QString pathOf(int kind)
{
    switch (kind) {
    case 1: {
        QString path = xdgDirectory("XDG_CACHE_HOME", "/.cache") + QLatin1String("/qaz/wallpapers");
        return makeDirectories(path) ? path : QString();
    }
    case 2:
    case 3:
        return xdgDirectory("XDG_CONFIG_HOME", "/.config") + QLatin1String("/qaz");
    case 6:
        return homeDirectory() + QStringLiteral("/Desktops/Desktop%1").arg(currentDesktop());
    case 14:
        return dataRoot() + QLatin1String("/sounds");
    case 18:
        return homeDirectory();
    case 21:
        return xdgDirectory("XDG_DATA_HOME", "/.local/share") + QLatin1String("/wallpapers");
    case 27:
        return dataRoot() + QLatin1String("/themes");
    default:
        return {};
    }
}

} // namespace

const char *GetQazDir(int kind)
{
    static QMap<int, QByteArray> texts;
    return texts.insert(kind, QFile::encodeName(pathOf(kind))).value().constData();
}
