#include "freedesktop/cursorfiles.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/themedirectories.h"

#include <QFile>

#include <X11/Xcursor/Xcursor.h>

namespace {

void appendOnce(QByteArrayList &list, const QByteArray &path)
{
    if (!list.contains(path))
        list.append(path);
}

bool holdsCursors(ThemeDirectories &directories, const QByteArray &theme)
{
    return directories.listing(theme).directories.contains("cursors");
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

QSet<QByteArray> cursorThemeNames(ThemeDirectories &directories)
{
    QSet<QByteArray> names;
    for (const QByteArray &base : directories.searchPath()) {
        for (const QByteArray &name : directories.listing(base).directories) {
            if (holdsCursors(directories, base + '/' + name))
                names.insert(name);
        }
    }
    return names;
}

QByteArray cursorFile(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name)
{
    for (const QByteArray &candidate :
         directories.withInherited({theme, "default"}, &IconThemeIndex::cursorInherits)) {
        for (const QByteArray &location : directories.locations(candidate)) {
            const QByteArray cursors = location + "/cursors";
            if (holdsCursors(directories, location) && directories.listing(cursors).files.contains(name))
                return cursors + '/' + name;
        }
    }
    return {};
}
