#include "platform/getqazdir.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/windowproperty.h"

#include <QFile>
#include <QMap>
#include <QX11Info>
#include <QtEndian>

#include <X11/Xlib.h>

namespace {

/// The number of the current virtual desktop, counted from 1.
qint64 currentDesktop()
{
    QByteArray number;
    if (QX11Info::isPlatformX11()) {
        Display *display = QX11Info::display();
        const Atom name = XInternAtom(display, "_NET_CURRENT_DESKTOP", False);
        number = windowProperty(display, DefaultRootWindow(display), name, 32).bytes;
    }
    return number.isEmpty() ? 1 : qint64(quint32(qFromUnaligned<unsigned long>(number.constData()))) + 1;
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
