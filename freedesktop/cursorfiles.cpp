#include "freedesktop/cursorfiles.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/themedirectories.h"

#include <QFile>

#include <X11/Xcursor/Xcursor.h>

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
        if (!directory.isEmpty() && !result.contains(directory))
            result.append(directory);
    }
    return result;
}

QByteArrayList cursorSearchPath()
{
    QByteArrayList result = cursorClientPath();
    for (const QString &data : {xdgDirectory("XDG_DATA_HOME", "/.local/share"), dataRoot()}) {
        if (const QByteArray icons = QFile::encodeName(data) + "/icons"; !result.contains(icons))
            result.append(icons);
    }
    return result;
}

QSet<QByteArray> cursorThemeNames(ThemeDirectories &directories)
{
    QSet<QByteArray> names;
    for (const QByteArray &base : directories.searchPath()) {
        for (const QByteArray &name : directories.listing(base).directories) {
            if (directories.listing(base + '/' + name).directories.contains("cursors"))
                names.insert(name);
        }
    }
    return names;
}

QByteArrayList cursorDirectories(ThemeDirectories &directories, const QByteArray &theme)
{
    QByteArrayList result;
    for (const QByteArray &each :
         directories.withInherited({theme, "default"}, &IconThemeIndex::cursorInherits)) {
        for (const QByteArray &location : directories.locations(each))
            result.append(location + "/cursors");
    }
    return result;
}

QByteArray cursorFile(ThemeDirectories &directories, const QByteArray &theme, const QByteArray &name)
{
    for (const QByteArray &cursors : cursorDirectories(directories, theme)) {
        if (directories.listing(cursors).files.contains(name))
            return cursors + '/' + name;
    }
    return {};
}
