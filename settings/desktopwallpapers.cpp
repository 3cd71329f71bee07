#include "settings/desktopwallpapers.h"

#include "base/diagnostics.h"
#include "base/editfile.h"
#include "freedesktop/desktopentry.h"
#include "platform/qazdesktopentry.h"
#include "settings/backup.h"
#include "settings/directories.h"
#include "settings/wmcommands.h"

#include <QDir>
#include <QFile>

#define SI_NO_CONVERSION  // only the 8-bit class is used; the others need a file that Debian does not ship
#define SI_IMPLEMENTATION // here: one library less to load at every start
#include <SimpleIni.h>

namespace {

constexpr int bufferSize = 4096;
constexpr char wallpaperKey[] = "X-QAZ-WallPaper";
const QLatin1String entryFileName("/.directory");

const QLatin1String desktopsDirectory("/Desktops");

QByteArray currentDesktopFile()
{
    return QFile::encodeName(directoryPath(DirectoryKind::CurrentDesktop) + entryFileName);
}

QString wallpaperIn(const QByteArray &path)
{
    QazDesktopEntry entry(path.constData());
    const char *stored = entry.load() ? entry.getUnknownValue(wallpaperKey) : nullptr;
    return QString::fromLocal8Bit(stored);
}

/// Whether a reader of INI files finds the key; as it reads by default, a key has one value and a value one line.
bool holdsWallpaper(const QByteArray &content)
{
    CSimpleIniCaseA ini;
    return ini.LoadData(content.constData(), std::size_t(content.size())) >= 0
           && ini.GetValue(desktopEntryGroup, wallpaperKey);
}

void removeWallpaperFrom(const QString &path)
{
    // SimpleIni's own writer would drop blank lines and reorder comments, so only the key's lines are cut out.
    const auto removeKey = [](const QByteArray &content) {
        return holdsWallpaper(content) ? desktopEntryText(content).withoutKey(desktopEntryGroup, wallpaperKey)
                                       : content;
    };
    EditFileOptions options;
    options.beforeReplace = [](const QString &file) { backUp(file); };
    if (QFile::exists(path))
        editFileOrTell(path, removeKey, options);
}

} // namespace

QString currentDesktopWallpaper()
{
    return wallpaperIn(currentDesktopFile());
}

QString desktopWallpaper(int number)
{
    return wallpaperIn(QFile::encodeName(directoryPath(DirectoryKind::Home) + desktopsDirectory
                                         + QStringLiteral("/Desktop%1").arg(number) + entryFileName));
}

void setCurrentDesktopWallpaper(const QString &wallpaper)
{
    const QByteArray path = currentDesktopFile();
    QazDesktopEntry entry(path.constData());
    if (!entry.load())
        return;
    // An unquoted "#" would begin a comment.
    const QString stored = wallpaper.startsWith(QLatin1Char('#'))
                               ? QLatin1Char('"') + wallpaper + QLatin1Char('"')
                               : wallpaper;
    const QByteArray value = stored.toLocal8Bit();
    if (value.size() >= bufferSize || value.contains('\n') || value.contains('\r')) {
        printDiagnostic(
            QStringLiteral("Can't store the wallpaper in %1: its name is too long or has a line break")
                .arg(QFile::decodeName(path)));
        return;
    }
    List<char> keys;
    List<char> values;
    keys.append(wallpaperKey);
    values.append(value.constData());
    entry.setUnknowns(keys, values);
    entry.save(0);
    sendToWindowManager(updateCommand(QStringLiteral("WallPaperLocal"), stored));
}

void removeDesktopWallpapers()
{
    const QDir desktops(directoryPath(DirectoryKind::Home) + desktopsDirectory);
    const QStringList names = desktops.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &name : names) {
        // Not a name filter: that would not tell "Desktop1" from "desktop1".
        if (name.startsWith(QLatin1String("Desktop")))
            removeWallpaperFrom(desktops.absolutePath() + QLatin1Char('/') + name + entryFileName);
    }
}
