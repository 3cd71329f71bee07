#include "platform/currentcursortheme.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "freedesktop/cursorfiles.h"
#include "freedesktop/iconthemeindex.h"
#include "freedesktop/serverresources.h"
#include "freedesktop/xresources.h"
#include "platform/livecursors.h"
#include "platform/setxrdbparameterinfile.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QX11Info>

#include <cstdio>

#include <X11/Xcursor/Xcursor.h>

namespace {

const QByteArray defaultTheme = QByteArrayLiteral("default");
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
    QTemporaryDir directory(path + QLatin1String("-XXXXXX"));
    if (!directory.isValid())
        return reportFailure(path, directory.errorString());
    QString reason;
    if (!replaceFile(directory.filePath(QStringLiteral("index.theme")), index, &reason))
        return reportFailure(path, reason);
    QFile::setPermissions(directory.path(), QFile::permissions(QFileInfo(path).path()));
    const QString target = QFile::symLinkTarget(path);
    if (!QFile::remove(path))
        return reportFailure(path, QStringLiteral("the link can't be removed"));
    if (std::rename(QFile::encodeName(directory.path()).constData(), QFile::encodeName(path).constData())
        == 0)
        return true;
    QFile::link(target, path);
    return reportFailure(path, QStringLiteral("the link can't be replaced"));
}

/// Lets the user's "default" theme inherit from \a name.
bool writeDefaultTheme(const QByteArray &name)
{
    const QString directory = userIconsDirectory() + QLatin1String("/default");
    const QString path = directory + QLatin1String("/index.theme");
    // "default" may not inherit from itself; without the line the system's default shows.
    const QByteArray inherited = name == defaultTheme ? QByteArray() : name;
    if (QFileInfo(directory).isSymLink())
        return inherited.isEmpty() || replaceLink(directory, withInherits({}, inherited));
    const FileContent old = readRegularFile(path);
    if (old.state == FileState::Unreadable)
        return reportFailure(path, old.error);
    if (inherited.isEmpty() && old.state == FileState::Missing)
        return true;
    const QByteArray content = withInherits(old.content, inherited);
    if (old.state == FileState::Regular && content == old.content)
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
    for (const QByteArray &base : clientPath) {
        if (holdsCursors(base))
            return true;
    }
    for (const QByteArray &base : cursorSearchPath()) {
        if (!holdsCursors(base))
            continue;
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

} // namespace

QByteArray currentCursorTheme(Display *display)
{
    // Xcursor reads the resource once per connection; XcursorSetTheme() keeps it up to date.
    QByteArray name(display ? XcursorGetTheme(display) : nullptr);
    if (!name.isEmpty())
        return name;
    const FileContent index = readRegularFile(userIconsDirectory() + QLatin1String("/default/index.theme"));
    return parseIconThemeIndex(index.content).cursorInherits.value(0);
}

bool setCurrentCursorTheme(const QByteArray &name)
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
            showCursorTheme(QX11Info::isPlatformX11() ? QX11Info::display() : nullptr, name);
            return true;
        }
        writeServerResources(serverBefore);
        putBack(path, fileBefore, written);
    }
    if (!link.isEmpty())
        QFile::remove(link);
    return false;
}
