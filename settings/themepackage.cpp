#include "settings/themepackage.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "platform/qazsettings.h"
#include "settings/backup.h"
#include "settings/directories.h"
#include "settings/themekeys.h"
#include "settings/wallpapertexts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSize>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace {

const QString themeMember = QStringLiteral("theme.themerc");
const QString namesMember = QStringLiteral("themes");
const QString wallpaperDirectory = QStringLiteral("wallpapers");
const QString soundDirectory = QStringLiteral("sounds");

QString dataHome()
{
    return xdgDirectory("XDG_DATA_HOME", "/.local/share");
}

/// Where the files of one directory of the archive belong.
QString placeOf(const QString &directory)
{
    return directory == wallpaperDirectory ? directoryPath(DirectoryKind::Wallpapers)
                                           : dataHome() + QLatin1String("/qaz/sounds");
}

/// The wallpaper that the user's own directory has under a name; empty for one that every desktop has.
QString ownWallpaper(const QString &name)
{
    const QString own = directoryPath(DirectoryKind::Wallpapers) + QLatin1Char('/');
    const QString file = wallpaperNamed(name, QSize(1920, 1080), false);
    return file.startsWith(own) ? file : QString();
}

/// Puts an archive together in a directory of its own.
class Packing
{
public:
    explicit Packing(const QString &themeFile)
        : m_themeFile(themeFile)
    {}

    bool fill(QStringList *missing, QString *error)
    {
        const QString copy = m_directory.filePath(themeMember);
        const FileContent file = readRegularFile(m_themeFile);
        if (file.state == FileState::Unreadable)
            return failed(error, file.error);
        if (!replaceFile(copy, file.content, error) || !writeNames(error))
            return false;
        QazSettings store(copy);
        for (const ThemeValue &value : knownValues(m_themeFile))
            takeFile(value, &store, missing);
        m_files.prepend({namesMember, m_directory.filePath(namesMember)});
        m_files.prepend({themeMember, copy});
        return true;
    }

    const QVector<ArchiveFile> &files() const { return m_files; }

private:
    void takeFile(const ThemeValue &value, QazSettings *store, QStringList *missing)
    {
        if (findThemeKey(value.key)->kind != KeyKind::File || value.key == QLatin1String("CompositeManager"))
            return;
        const bool isWallpaper = value.key == QLatin1String("WallPaper");
        const QString &directory = isWallpaper ? wallpaperDirectory : soundDirectory;
        if (!value.value.startsWith(QLatin1Char('/'))) {
            const QString own = isWallpaper ? ownWallpaper(value.value) : QString();
            if (!own.isEmpty())
                m_files.append({directory + QLatin1Char('/') + QFileInfo(own).fileName(), own});
        } else if (QFileInfo(value.value).isFile()) {
            store->setValue(value.key, memberFor(value.value, directory));
        } else {
            missing->append(value.value);
        }
    }

    /// The name under which the file \a path is in the archive, where each name is one file's alone.
    QString memberFor(const QString &path, const QString &directory)
    {
        QString &member = m_members[directory + path];
        if (!member.isEmpty())
            return member;
        QString fileName = QFileInfo(path).fileName();
        if (fileName.startsWith(QLatin1Char('.')))
            fileName.replace(0, 1, QLatin1Char('_'));
        member = directory + QLatin1Char('/') + fileName;
        for (int i = 2; isTaken(member); ++i)
            member = QStringLiteral("%1/%2-%3").arg(directory).arg(i).arg(fileName);
        m_files.append({member, path});
        return member;
    }

    bool isTaken(const QString &member) const
    {
        return std::any_of(m_files.begin(), m_files.end(),
                           [&member](const ArchiveFile &file) { return file.name == member; });
    }

    bool writeNames(QString *error) const
    {
        QazSettings store(m_directory.filePath(themeMember));
        store.sync(true);
        QByteArray text;
        for (const ThemeKey &key : themeKeys) {
            if (key.kind == KeyKind::Text)
                text += QByteArray(key.name) + '=' + themeValue(store, QLatin1String(key.name)).toUtf8()
                        + '\n';
        }
        return replaceFile(m_directory.filePath(namesMember), text, error);
    }

    QString m_themeFile;
    QTemporaryDir m_directory;
    QVector<ArchiveFile> m_files;
    QMap<QString, QString> m_members;
};

/// Moves a file over what stands at \a to, of a link over the link itself, after a backup. A directory stays.
bool moveOver(const QString &from, const QString &to, QString *error)
{
    const QFileInfo old(to);
    const bool isReplaced = old.isSymLink() || (old.exists() && !old.isDir());
    if (isReplaced && backUp(to, error).isEmpty())
        return false;
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0
           || failed(error, QStringLiteral("%1: %2").arg(to, systemErrorText(errno)));
}

bool holdsTheSame(const QString &one, const QString &other)
{
    const FileContent content = readRegularFile(other);
    return content.state == FileState::Regular && !QFileInfo(other).isSymLink()
           && content.content == readRegularFile(one).content;
}

} // namespace

bool packTheme(const QString &themeFile, const QString &path, QStringList *missing, QString *error)
{
    Packing packing(themeFile);
    if (!packing.fill(missing, error))
        return false;
    const QTemporaryDir staging(QFileInfo(path).absolutePath() + QLatin1String("/.qaz-pack-XXXXXX"));
    if (!staging.isValid())
        return failed(error, staging.errorString());
    const QString packed = staging.filePath(QStringLiteral("packed"));
    return writeArchive(packed, packing.files(), error) && moveOver(packed, path, error);
}

bool UnpackedTheme::read(const QString &path, QString *error)
{
    // On the file system of the places, but without making them: nothing may be left of an archive that is refused.
    QString directory = dataHome();
    while (!QFileInfo(directory).isDir())
        directory = QFileInfo(directory).path();
    m_staging = std::make_unique<QTemporaryDir>(directory + QLatin1String("/.qaz-unpack-XXXXXX"));
    if (!m_staging->isValid())
        return failed(error, m_staging->errorString());
    QVector<ArchiveFile> files;
    return readArchive(path, m_staging->path(), {wallpaperDirectory, soundDirectory}, &files, error)
           && planMoves(files, error);
}

bool UnpackedTheme::planMoves(const QVector<ArchiveFile> &files, QString *error)
{
    QMap<QString, QString> places;
    bool hasTheme = false;
    for (const ArchiveFile &file : files) {
        const QString directory = file.name.section(QLatin1Char('/'), 0, -2);
        if (!directory.isEmpty()) {
            const QString target = placeOf(directory) + QLatin1Char('/') + QFileInfo(file.name).fileName();
            places.insert(file.name, target);
            if (!holdsTheSame(file.path, target))
                m_moves.append({file.path, target});
        } else if (file.name == themeMember) {
            hasTheme = true;
        } else if (file.name != namesMember) {
            return failed(error, QStringLiteral("'%1' does not belong in it").arg(file.name));
        }
    }
    m_values = knownValues(m_staging->filePath(themeMember));
    for (ThemeValue &value : m_values) {
        if (findThemeKey(value.key)->kind == KeyKind::File)
            value.value = places.value(value.value, value.value);
    }
    return hasTheme || failed(error, QStringLiteral("there is no %1 in it").arg(themeMember));
}

QStringList UnpackedTheme::targets() const
{
    QStringList targets;
    for (const Move &move : m_moves)
        targets.append(move.to);
    return targets;
}

bool UnpackedTheme::place(QString *error)
{
    for (const Move &move : qAsConst(m_moves)) {
        const QString directory = QFileInfo(move.to).path();
        if (!makeDirectories(directory))
            return failed(error, QStringLiteral("Can't create directory %1").arg(directory));
        if (!moveOver(move.from, move.to, error))
            return false;
    }
    return true;
}
