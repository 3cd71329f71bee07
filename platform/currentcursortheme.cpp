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

#include <algorithm>

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
    const QByteArrayList path = cursorSearchPath(); // in which those of the clients come first
    const auto base = std::find_if(path.begin(), path.end(), [&name](const QByteArray &directory) {
        return QFileInfo::exists(QFile::decodeName(directory + '/' + name + "/cursors"));
    });
    if (base == path.end() || cursorClientPath().contains(*base))
        return true;
    const QString link = userIconsDirectory() + QLatin1Char('/') + QFile::decodeName(name);
    makeDirectories(userIconsDirectory());
    // A link to a theme that has moved, as one made here before, is in the way.
    if (const QFileInfo old(link); old.isSymLink() && !old.exists())
        QFile::remove(link);
    if (!QFile::link(QFile::decodeName(*base + '/' + name), link))
        return reportFailure(link, QStringLiteral("the cursor theme can't be linked"));
    *made = link;
    return true;
}

/// \a value as that of an X resource: blanks in front and line breaks would be lost.
QByteArray resourceValue(QByteArray value)
{
    value.replace('\\', "\\\\").replace('\n', "\\n");
    return value.startsWith(' ') || value.startsWith('\t') ? '\\' + value : value;
}

/// Gives the file at \a path its content of \a before again, unless it is no longer what we wrote there.
void putBack(const QString &path, const FileContent &before, const QByteArray &written)
{
    EditFileOptions options;
    options.removeWhenEmpty = before.state == FileState::Missing;
    editFileOrTell(
        path, [&](const QByteArray &content) { return content == written ? before.content : content; },
        options);
}

/// Shows the cursors of \a theme in this program and, where the server can change cursors by their name, in
/// all others on \a display, and over the root window.
void showCursorTheme(Display *display, const QByteArray &theme)
{
    const auto withCursor = [display](const QByteArray &name, const auto &use) {
        if (const Cursor cursor = XcursorLibraryLoadCursor(display, name.constData())) {
            use(cursor);
            XFreeCursor(display, cursor);
        }
    };
    XcursorSetTheme(display, theme.constData());
    withCursor("left_ptr",
               [&](Cursor cursor) { XDefineCursor(display, DefaultRootWindow(display), cursor); });
    ThemeDirectories directories(cursorSearchPath());
    QSet<QByteArray> names;
    for (const QByteArray &cursors : cursorDirectories(directories, theme))
        names += directories.listing(cursors).files;
    for (const QByteArray &name : qAsConst(names))
        withCursor(name, [&](Cursor cursor) { XFixesChangeCursorByName(display, cursor, name.constData()); });
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
    if (setXrdbParameterInFile(QFile::encodeName(path).constData(), resource, " ", value.constData())) {
        const QByteArray written = readRegularFile(path).content;
        const bool isMerged = runXrdb(
            {QStringLiteral("-quiet"), QStringLiteral("-merge"), QStringLiteral("-nocpp")},
            resource + QByteArrayLiteral(" ") + value + '\n');
        if (!isMerged)
            printDiagnostic(QStringLiteral("Can't merge the cursor theme into the X server"));
        if (isMerged && writeDefaultTheme(name)) {
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
