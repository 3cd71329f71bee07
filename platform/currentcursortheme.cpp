// Which cursor theme the user has: the part of QazIconTheme that reads and writes it.

#include "platform/qazicontheme.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "freedesktop/cursorfiles.h"
#include "freedesktop/iconthemeindex.h"
#include "freedesktop/themedirectories.h"
#include "freedesktop/xresources.h"
#include "platform/setxrdbparameterinfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QX11Info>

#include <X11/Xcursor/Xcursor.h>
#include <X11/extensions/Xfixes.h>

namespace {

const char resource[] = "Xcursor.theme:";

QString userIconsDirectory()
{
    return homeDirectory() + QLatin1String("/.icons");
}

bool reportFailure(const QString &path, const QString &reason)
{
    printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, reason));
    return false;
}

/// Puts a directory with an index file in the place of the link at \a path; what the link leads to stays.
bool replaceLink(const QString &path, const QByteArray &index)
{
    const QString target = QFile::symLinkTarget(path);
    QString reason = QStringLiteral("the link can't be removed");
    if (QFile::remove(path)) {
        if (replaceFile(path + QLatin1String("/index.theme"), index, &reason))
            return true;
        QDir().rmdir(path);
        QFile::link(target, path);
    }
    return reportFailure(path, reason);
}

/// Lets the user's "default" theme inherit from \a name.
bool writeDefaultTheme(const QByteArray &name)
{
    const QString directory = userIconsDirectory() + QLatin1String("/default");
    const QString path = directory + QLatin1String("/index.theme");
    // "default" may not inherit from itself; without the line the system's default shows.
    const QByteArray inherited = name == "default" ? QByteArray() : name;
    if (QFileInfo(directory).isSymLink())
        return inherited.isEmpty() || replaceLink(directory, withInherits({}, inherited));
    const FileContent old = readRegularFile(path);
    if (old.state == FileState::Unreadable)
        return reportFailure(path, old.error);
    const QByteArray content = withInherits(old.content, inherited);
    if (content == old.content)
        return true;
    // A link leads into some theme, which is not ours to change.
    if (QFileInfo(path).isSymLink())
        QFile::remove(path);
    QString reason;
    return replaceFile(path, content, &reason) || reportFailure(path, reason);
}

/// Links a theme that X clients would not find, because it is not on their path, into the user's icons. \a made is
/// the new link.
bool makeReachable(const QByteArray &name, QString *made)
{
    const auto holdsCursors = [&name](const QByteArray &base) {
        return QFileInfo::exists(QFile::decodeName(base + '/' + name + "/cursors"));
    };
    const QByteArrayList clientPath = cursorClientPath();
    // The others stand behind those of the clients.
    for (const QByteArray &base : cursorSearchPath()) {
        if (!holdsCursors(base))
            continue;
        if (clientPath.contains(base))
            return true;
        const QString link = userIconsDirectory() + QLatin1Char('/') + QFile::decodeName(name);
        makeDirectories(userIconsDirectory());
        // A link to a theme that has moved, as one made here before, is in the way.
        if (const QFileInfo old(link); old.isSymLink() && !old.exists())
            QFile::remove(link);
        if (!QFile::link(QFile::decodeName(base + '/' + name), link))
            return reportFailure(link, QStringLiteral("the cursor theme can't be linked"));
        *made = link;
        return true;
    }
    return true;
}

/// \a text as the value of an X resource: blanks in front and line breaks would be lost.
QByteArray resourceValue(const QByteArray &text)
{
    QByteArray value = text;
    value.replace('\\', "\\\\").replace('\n', "\\n");
    return value.startsWith(' ') || value.startsWith('\t') ? '\\' + value : value;
}

bool mergeIntoServer(const QByteArray &line)
{
    if (runXrdb({QStringLiteral("-quiet"), QStringLiteral("-merge"), QStringLiteral("-nocpp")}, line))
        return true;
    printDiagnostic(QStringLiteral("Can't merge the cursor theme into the X server"));
    return false;
}

/// Gives the file at \a path its content of \a before again, unless it is no longer what we wrote there.
void putBack(const QString &path, const FileContent &before, const QByteArray &written)
{
    EditFileOptions options;
    options.removeWhenEmpty = before.state == FileState::Missing;
    const auto edit = [&](const QByteArray &content) {
        return content == written ? before.content : content;
    };
    if (QString error; !editFile(path, edit, &error, options))
        reportFailure(path, error);
}

bool canChangeByName(Display *display)
{
    int major = 0;
    int minor = 0;
    return XFixesQueryExtension(display, &major, &minor) && XFixesQueryVersion(display, &major, &minor)
           && major >= 2;
}

/// Shows the cursors of \a theme in this program and, where the server can change cursors by their name, in
/// all others on \a display, and over the root window.
void showCursorTheme(Display *display, const QByteArray &theme)
{
    XcursorSetTheme(display, theme.constData());
    if (const Cursor pointer = XcursorLibraryLoadCursor(display, "left_ptr")) {
        XDefineCursor(display, DefaultRootWindow(display), pointer);
        XFreeCursor(display, pointer);
    }
    ThemeDirectories directories(cursorSearchPath());
    QSet<QByteArray> names;
    if (canChangeByName(display)) {
        for (const QByteArray &each :
             directories.withInherited({theme, "default"}, &IconThemeIndex::cursorInherits)) {
            for (const QByteArray &location : directories.locations(each))
                names += directories.listing(location + "/cursors").files;
        }
    }
    for (const QByteArray &name : qAsConst(names)) {
        if (const Cursor cursor = XcursorLibraryLoadCursor(display, name.constData())) {
            XFixesChangeCursorByName(display, cursor, name.constData());
            XFreeCursor(display, cursor);
        }
    }
    XFlush(display);
}

} // namespace

const char *QazIconTheme::getCurrentCursorThemeName(Display *display)
{
    static QByteArray name;
    // Xcursor reads the resource once per connection; XcursorSetTheme() keeps it up to date.
    name = display ? XcursorGetTheme(display) : nullptr;
    if (name.isEmpty()) {
        const FileContent index = readRegularFile(userIconsDirectory()
                                                  + QLatin1String("/default/index.theme"));
        name = parseIconThemeIndex(index.content).cursorInherits.value(0);
    }
    return name.isEmpty() ? nullptr : name.constData();
}

bool QazIconTheme::setCurrentCursorThemeName(const char *name)
{
    const QString path = userXresources();
    const QByteArray value = resourceValue(name);
    QString link;
    if (!makeReachable(name, &link))
        return false;
    const FileContent fileBefore = readRegularFile(path);
    const std::vector<ServerResource> serverBefore = readServerResources();
    // Last what can't be put back as it was.
    if (setXrdbParameterInFile(QFile::encodeName(path).constData(), resource, " ", value.constData(),
                               false)) {
        const QByteArray written = readRegularFile(path).content;
        if (mergeIntoServer(resource + QByteArrayLiteral(" ") + value + '\n') && writeDefaultTheme(name)) {
            if (QX11Info::isPlatformX11())
                showCursorTheme(QX11Info::display(), name);
            return true;
        }
        writeServerResources(serverBefore);
        putBack(path, fileBefore, written);
    }
    if (!link.isEmpty())
        QFile::remove(link);
    return false;
}
