#include "fonts/xresources.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "freedesktop/xresources.h"
#include "settings/renderingstore.h"

#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QX11Info>

#include <memory>

#include <X11/Xlib.h>

namespace {

/// Opens the file for the merged resources: beside the user's own, which may include others by relative paths.
bool openMergedFile(QTemporaryFile *file)
{
    // xrdb hands the name of a file to a shell without quotes.
    static const QRegularExpression special(QStringLiteral("[^A-Za-z0-9/._+-]"));
    for (const QString &directory : {homeDirectory(), QDir::tempPath(), QStringLiteral("/tmp")}) {
        file->setFileTemplate(directory + QLatin1String("/.qaz-XXXXXX"));
        if (!directory.contains(special) && file->open())
            return true;
        printDiagnostic(QStringLiteral("Can't merge X resources in %1, files that they include may not be "
                                       "found: It can't be written, or xrdb does not understand its name")
                            .arg(directory));
    }
    return false;
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

} // namespace

void applyXResources(unsigned flags)
{
    QTemporaryFile merged;
    if (!openMergedFile(&merged))
        return;
    const QString file = userXresources();
    const QString older = homeDirectory() + QLatin1String("/.Xdefaults");
    QByteArray resources = endedXresources(readRegularFile(QFileInfo::exists(file) ? file : older).content);
    if (flags & exportXftSettings) {
        resources += xftResourceLines(ownSettingsFile()).toLatin1();
        if (storedRendering(RenderingKey::forceFontDpi).toInt() == 0)
            removeDpiFromServer();
    }
    // Not written through the open file: behind a limit of its size waits a signal.
    if (QString error; replaceFile(merged.fileName(), resources, &error))
        runXrdb({QStringLiteral("-merge"), merged.fileName()});
    else
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(merged.fileName(), error));
    stampSettingsChange();
}

void removeDpiFromServer()
{
    // Removing takes all of the server's resources, whatever xrdb is told to read.
    std::vector<ServerResource> resources = readServerResources();
    runXrdb({QStringLiteral("-quiet"), QStringLiteral("-remove"), QStringLiteral("-nocpp")}, "Xft.dpi\n");
    for (ServerResource &resource : resources)
        resource.text = withXresource(resource.text, "Xft.dpi", {});
    writeServerResources(resources);
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
