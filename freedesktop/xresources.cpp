#include "freedesktop/xresources.h"

#include "base/chandle.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "freedesktop/processwait.h"

#include <QProcess>
#include <QX11Info>

#include <cstring>
#include <memory>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

constexpr int xrdbTimeoutMs = 30000;

/// The position behind the line that begins at \a begin, continued ones included.
int lineEnd(const QByteArray &text, int begin)
{
    int end = text.indexOf('\n', begin);
    for (; end >= 0; end = text.indexOf('\n', end + 1)) {
        int backslashes = 0;
        while (end - backslashes > begin && text.at(end - 1 - backslashes) == '\\')
            ++backslashes;
        if (backslashes % 2 == 0)
            return end + 1;
    }
    return text.size();
}

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

QString userXresources()
{
    return homeDirectory() + QLatin1String("/.Xresources");
}

QByteArray withXresource(const QByteArray &text, const QByteArray &name, const QByteArray &line)
{
    QByteArray result;
    int place = -1; // in result, of the last line of the resource
    QByteArray lineBreak;
    for (int begin = 0; begin < text.size();) {
        const int end = lineEnd(text, begin);
        const QByteArray old = text.mid(begin, end - begin);
        const int colon = old.indexOf(':');
        if (colon >= 0 && old.left(colon).trimmed() == name) {
            place = result.size();
            lineBreak = old.endsWith("\r\n") ? "\r\n" : old.endsWith('\n') ? "\n" : "";
        } else {
            result += old;
        }
        begin = end;
    }
    if (line.isNull())
        return result;
    if (place >= 0)
        return result.insert(place, line + lineBreak);
    return endedXresources(result) + line + '\n';
}

QByteArray endedXresources(QByteArray text)
{
    if (text.isEmpty())
        return text;
    if (!text.endsWith('\n'))
        text += '\n';
    int last = text.size() - 2;
    while (last >= 0 && std::strchr(" \t\r", text.at(last)))
        --last;
    // The preprocessor joins lines at any backslash, blanks behind it or not.
    return last >= 0 && text.at(last) == '\\' ? text + '\n' : text;
}

bool runXrdb(const QStringList &arguments, const QByteArray &input)
{
    QProcess xrdb;
    xrdb.start(QStringLiteral("xrdb"), arguments);
    if (!xrdb.waitForStarted(xrdbTimeoutMs))
        return false;
    xrdb.write(input);
    xrdb.closeWriteChannel();
    if (!waitForEnd(xrdb, xrdbTimeoutMs)) {
        printDiagnostic(QStringLiteral("xrdb is ended: it takes longer than 30 s"));
        xrdb.kill();
        xrdb.waitForFinished();
        return false;
    }
    if (xrdb.exitStatus() == QProcess::NormalExit && xrdb.exitCode() == 0)
        return true;
    printDiagnostic(
        QStringLiteral("xrdb failed: %1").arg(QString::fromLocal8Bit(xrdb.readAllStandardError().trimmed())));
    return false;
}

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
