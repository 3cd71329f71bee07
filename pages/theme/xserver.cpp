#include "pages/theme/xserver.h"

#include "platform/finddpi.h"
#include "platform/qazicontheme.h"
#include "settings/wmcommands.h"

#include <QFile>
#include <QX11Info>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

#include <X11/Xlib.h>

namespace {

constexpr std::size_t commandSize = 4096;

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

bool setCursorTheme(const QString &name)
{
    if (!QazIconTheme::setCurrentCursorThemeName(QFile::encodeName(name).constData()))
        return false;
    std::array<char, commandSize> command{};
    std::snprintf(command.data(), command.size(), "QAZWM_UPDATE_VAL CursorTheme %s\n",
                  name.toLocal8Bit().constData());
    sendToWindowManager(QByteArray(command.data()));
    return true;
}
