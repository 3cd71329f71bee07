#include "settings/backup.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/editfile.h"
#include "base/keyfiletext.h"
#include "base/xdgdirectories.h"
#include "settings/treecopy.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace {

constexpr int copiesKept = 10;
constexpr int longestNamePart = 60; // short enough to be prefixed

QString backupDirectory()
{
    return xdgDirectory("XDG_STATE_HOME", "/.local/state") + QLatin1String("/qaz/backup/");
}

QString manifestFile()
{
    return backupDirectory() + QLatin1String("manifest");
}

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

void remove(const QString &path)
{
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(path).constData(), ignored);
}

/// Renames without following links. An existing \a to is replaced only when it is a file.
bool moveTo(const QString &from, const QString &to, QString *error)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0
           || failed(error, systemErrorText(errno));
}

/// A path for a copy that is free: UTC time, then the file's own name without control characters.
QString freePath(const QString &fileName)
{
    QString name = fileName.left(longestNamePart);
    for (QChar &character : name) {
        if (!character.isPrint())
            character = QLatin1Char('_');
    }
    const QString time = backupDirectory()
                         + QDateTime::currentDateTimeUtc().toString(
                             QStringLiteral("yyyyMMdd'T'HHmmss.zzz'Z-'"));
    QString path = time + name;
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = time + QString::number(i) + QLatin1Char('-') + name;
    return path;
}

/// The entries of the manifest, the oldest first; none when it can't be read.
QVector<Backup> readManifest()
{
    QVector<Backup> entries;
    for (const QByteArray &line : readRegularFile(manifestFile()).content.split('\n')) {
        const int tab = line.indexOf('\t');
        const QString name = QFile::decodeName(line.left(tab));
        // Whoever wrote it: nothing outside the directory is a copy, nor is the directory.
        if (tab > 0 && !name.contains(QLatin1Char('/')) && !name.startsWith(QLatin1Char('.')))
            entries.append({backupDirectory() + name, QFile::decodeName(unescaped(line.mid(tab + 1)))});
    }
    return entries;
}

/// Adds the new copy to the manifest and removes those of its original that are too many.
bool recordCopy(const Backup &copy, QString *error)
{
    QVector<Backup> entries = readManifest() << copy;
    QVector<int> places;
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).original == copy.original)
            places.append(i);
    }
    QStringList surplus;
    for (int i = places.size() - copiesKept; i >= 1; --i) // not the first one
        surplus.append(entries.takeAt(places.at(i)).copy);
    QByteArray text;
    for (const Backup &entry : qAsConst(entries))
        text += QFile::encodeName(QFileInfo(entry.copy).fileName()) + '\t'
                + escaped(QFile::encodeName(entry.original)) + '\n';
    if (!replaceFile(manifestFile(), text, error, 0600))
        return false;
    for (const QString &path : qAsConst(surplus))
        remove(path);
    return true;
}

/// The copy of \a path; empty, with the reason in \a error unless there was nothing to copy.
QString copyOf(const QString &path, QString *error)
{
    const QString original = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (!isThere(original))
        return {};
    const FileLock lock(manifestFile());
    if (!lock.isHeld()) {
        *error = lock.error();
        return {};
    }
    const QFileInfo info(original);
    if (!info.isSymLink()
        && (QFileInfo(backupDirectory()).canonicalFilePath() + QLatin1Char('/'))
               .startsWith(info.canonicalFilePath() + QLatin1Char('/'))) {
        *error = QStringLiteral("the backups lie in it"); // a copy without end
        return {};
    }
    // Complete before it gets its name: what a killed program leaves can't be taken for a copy.
    const QString partial = backupDirectory() + QLatin1String(".partial");
    remove(partial);
    QString copy = freePath(info.fileName());
    // A link to a file is backed up as the file: its bytes are what can get lost.
    if (copyTree(info.isFile() ? linkTarget(original) : original, partial, error)
        && moveTo(partial, copy, error) && recordCopy({copy, original}, error))
        return copy;
    remove(partial);
    remove(copy);
    return {};
}

bool isBackedUp(const QString &path, QString *error)
{
    backUp(path, error);
    return error->isEmpty();
}

bool restoreFile(const Backup &backup, QString *error)
{
    // Read first: the new backup may push the copy out.
    const FileContent copy = readRegularFile(backup.copy);
    if (copy.state != FileState::Regular)
        return failed(error, copy.error);
    if (QFileInfo(backup.original).isDir())
        return failed(error, systemErrorText(EISDIR));
    const FileLock lock(backup.original);
    if (!lock.isHeld())
        return failed(error, lock.error());
    return isBackedUp(backup.original, error) && replaceFile(backup.original, copy.content, error, 0600);
}

bool restoreTree(const Backup &backup, QString *error)
{
    const QString directory = QFileInfo(backup.original).path();
    if (!makeDirectories(directory))
        return failed(error, QStringLiteral("Can't create directory %1").arg(directory));
    const QTemporaryDir staging(directory + QLatin1String("/.qaz-restore-XXXXXX"));
    if (!staging.isValid())
        return failed(error, staging.errorString());
    const QString tree = staging.filePath(QStringLiteral("tree"));
    const QString old = staging.filePath(QStringLiteral("old"));
    if (!copyTree(backup.copy, tree, error) || !isBackedUp(backup.original, error))
        return false;
    const bool isReplaced = isThere(backup.original);
    if (isReplaced && !moveTo(backup.original, old, error))
        return false;
    if (moveTo(tree, backup.original, error))
        return true;
    QString ignored;
    if (isReplaced && !moveTo(old, backup.original, &ignored))
        printDiagnostic(QStringLiteral("Can't put %1 back: %2").arg(backup.original, ignored));
    return false;
}

} // namespace

QString backUp(const QString &path, QString *error)
{
    QString reason;
    QString copy = copyOf(path, &reason);
    if (!reason.isEmpty())
        printDiagnostic(QStringLiteral("Can't back up %1: %2").arg(path, reason));
    if (error)
        *error = reason;
    return copy;
}

QVector<Backup> backups()
{
    QVector<Backup> result = readManifest();
    const auto isGone = [](const Backup &backup) { return !QFileInfo::exists(backup.copy); };
    result.erase(std::remove_if(result.begin(), result.end(), isGone), result.end());
    return result;
}

bool restoreCopy(const Backup &backup, QString *error)
{
    const QFileInfo copy(backup.copy);
    return copy.isFile() && !copy.isSymLink() ? restoreFile(backup, error) : restoreTree(backup, error);
}
