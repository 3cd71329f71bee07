#include "freedesktop/xresources.h"

#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "freedesktop/processwait.h"
#include "freedesktop/windowproperty.h"

#include <QProcess>
#include <QX11Info>

#include <optional>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

/// The lines of \a text, each with its line break and those that continue it.
QByteArrayList resourceLines(const QByteArray &text)
{
    QByteArrayList lines;
    bool goesOn = false;
    for (const QByteArray &part : text.split('\n')) {
        if (!goesOn)
            lines.append(QByteArray());
        lines.last() += part + '\n';
        goesOn = false;
        for (QByteArray rest = part; rest.endsWith('\\'); rest.chop(1))
            goesOn = !goesOn; // a backslash that is itself written with one ends nothing
    }
    lines.last().chop(1);
    return lines;
}

ServerResource readProperty(Display *display, Window window, Atom property)
{
    const WindowProperty found = windowProperty(display, window, property, 8);
    return {window, property, found.type, found.bytes};
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
    std::optional<int> place; // in result, of the last line of the resource
    QByteArray lineBreak;
    for (const QByteArray &old : resourceLines(text)) {
        if (old.contains(':') && old.left(old.indexOf(':')).trimmed() == name) {
            place = result.size();
            lineBreak = old.endsWith("\r\n") ? "\r\n" : old.endsWith('\n') ? "\n" : "";
        } else {
            result += old;
        }
    }
    if (line.isNull())
        return result;
    return place ? result.insert(*place, line + lineBreak) : endedXresources(result) + line + '\n';
}

QByteArray endedXresources(QByteArray text)
{
    if (text.isEmpty())
        return text;
    if (!text.endsWith('\n'))
        text += '\n';
    // The preprocessor joins lines at any backslash, blanks behind it or not.
    const QByteArray lastLine = text.chopped(1).split('\n').constLast();
    return lastLine.trimmed().endsWith('\\') ? text + '\n' : text;
}

bool runXrdb(const QStringList &arguments, const QByteArray &input)
{
    QProcess xrdb;
    xrdb.start(QStringLiteral("xrdb"), arguments);
    if (!xrdb.waitForStarted())
        return false;
    xrdb.write(input);
    xrdb.closeWriteChannel();
    const bool isDone = succeeds(xrdb);
    if (!isDone)
        printDiagnostic(QStringLiteral("xrdb failed: %1")
                            .arg(QString::fromLocal8Bit(xrdb.readAllStandardError().trimmed())));
    return isDone;
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
