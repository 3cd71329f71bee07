#include "pages/theme/xserver.h"

#include "platform/finddpi.h"
#include "platform/qazicontheme.h"
#include "settings/wmcommands.h"

#include <QFile>
#include <QX11Info>

#include <X11/Xlib.h>

namespace {

/// Null elsewhere than on X11, where Qt would hand out a wild pointer.
Display *applicationDisplay()
{
    return QX11Info::isPlatformX11() ? QX11Info::display() : nullptr;
}

} // namespace

bool serverHasExtension(const char *name)
{
    Display *display = applicationDisplay();
    int opcode, event, error;
    return display && XQueryExtension(display, name, &opcode, &event, &error);
}

double screenDpi()
{
    Display *display = applicationDisplay();
    return display ? FindDPI(display, QX11Info::appScreen()) : 0.0;
}

QString currentCursorTheme()
{
    const QByteArray name(QazIconTheme::getCurrentCursorThemeName(applicationDisplay()));
    return name.isEmpty() ? QStringLiteral("default") : QFile::decodeName(name);
}

bool setCursorTheme(const QString &name)
{
    if (!QazIconTheme::setCurrentCursorThemeName(QFile::encodeName(name).constData()))
        return false;
    sendToWindowManager(updateCommand(QStringLiteral("CursorTheme"), name));
    return true;
}
