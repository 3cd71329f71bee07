#include "freedesktop/cursorfiles.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/themedirectories.h"

#include <QFile>
#include <QSet>

#include <X11/Xcursor/Xcursor.h>

namespace {

/// Depth-first, as Xcursor goes; \a seen ends loops of inheritance.
QByteArray findCursor(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name,
                      QSet<QByteArray> &seen)
{
    if (seen.contains(theme))
        return {};
    seen.insert(theme);
    const QByteArrayList locations = directories.locations(theme);
    for (const QByteArray &location : locations) {
        const QByteArray cursors = location + "/cursors";
        if (directories.listing(location).hasDirectory("cursors")
            && directories.listing(cursors).hasFile(name))
            return cursors + '/' + name;
    }
    if (const IconThemeIndex *index = directories.index(locations)) {
        for (const QByteArray &inherited : index->cursorInherits) {
            if (QByteArray file = findCursor(directories, inherited, name, seen); !file.isEmpty())
                return file;
        }
    }
    return {};
}

void appendOnce(QByteArrayList &list, const QByteArray &path)
{
    if (!list.contains(path))
        list.append(path);
}

} // namespace

QByteArrayList cursorClientPath()
{
    const QByteArray path = qEnvironmentVariableIsSet("XCURSOR_PATH") ? qgetenv("XCURSOR_PATH")
                                                                      : QByteArray(XcursorLibraryPath());
    QByteArrayList result;
    for (QByteArray directory : path.split(':')) {
        if (directory.startsWith('~'))
            directory = QFile::encodeName(homeDirectory()) + directory.mid(1);
        while (directory.size() > 1 && directory.endsWith('/'))
            directory.chop(1);
        if (!directory.isEmpty())
            appendOnce(result, directory);
    }
    return result;
}

QByteArrayList cursorSearchPath()
{
    QByteArrayList result = cursorClientPath();
    appendOnce(result, QFile::encodeName(xdgDirectory("XDG_DATA_HOME", "/.local/share")) + "/icons");
    appendOnce(result, QFile::encodeName(dataRoot()) + "/icons");
    return result;
}

QByteArrayList cursorThemeNames(ThemeDirectories &directories)
{
    QSet<QByteArray> names;
    for (const QByteArray &base : directories.searchPath()) {
        for (const DirectoryListing::Entry &entry : directories.listing(base).entries()) {
            if (entry.canBeDirectory && directories.listing(base + '/' + entry.name).hasDirectory("cursors"))
                names.insert(entry.name);
        }
    }
    return names.values();
}

QByteArray cursorFile(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name)
{
    QSet<QByteArray> seen;
    QByteArray file = findCursor(directories, theme, name, seen);
    return file.isEmpty() ? findCursor(directories, QByteArrayLiteral("default"), name, seen) : file;
}
