#include "pages/theme/xserver.h"

#include "platform/finddpi.h"
#include "platform/qazicontheme.h"

#include <QFile>
#include <QX11Info>

#include <algorithm>
#include <cstring>
#include <memory>

#include <X11/Xlib.h>

namespace {

struct FreeExtensionList {
    void operator()(char **list) const { XFreeExtensionList(list); }
};

/// Null elsewhere than on X11, where Qt would hand out a wild pointer.
Display *applicationDisplay()
{
    return QX11Info::isPlatformX11() ? QX11Info::display() : nullptr;
}

} // namespace

bool serverHasExtension(const char *name)
{
    Display *display = applicationDisplay();
    if (!display)
        return false;
    int count = 0;
    const std::unique_ptr<char *, FreeExtensionList> names(XListExtensions(display, &count));
    return names && std::any_of(names.get(), names.get() + count, [name](const char *extension) {
               return std::strcmp(extension, name) == 0;
           });
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
