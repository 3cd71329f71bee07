#include "settings/restorecopy.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "settings/treecopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>

namespace {

/// Renames without following links. An existing \a to is replaced only when it is a file.
bool moveTo(const QString &from, const QString &to, QString *error)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return true;
    *error = systemErrorText(errno);
    return false;
}

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool backedUp(const QString &path, QString *error)
{
    if (isThere(path))
        backUp(path, error);
    return error->isEmpty();
}

bool restoreFile(const Backup &backup, QString *error)
{
    // Read first: the new backup may push the copy out.
    const FileContent copy = readRegularFile(backup.copy);
    if (copy.state != FileState::Regular) {
        *error = copy.error;
        return false;
    }
    if (QFileInfo(backup.original).isDir()) {
        *error = systemErrorText(EISDIR);
        return false;
    }
    if (!backedUp(backup.original, error))
        return false;
    const FileLock lock(linkTarget(backup.original));
    if (!lock.isHeld()) {
        *error = lock.error();
        return false;
    }
    return replaceFile(backup.original, copy.content, error, 0600);
}

bool restoreTree(const Backup &backup, QString *error)
{
    const QTemporaryDir staging(QFileInfo(backup.original).path() + QLatin1String("/.qaz-restore-XXXXXX"));
    const QString tree = staging.filePath(QStringLiteral("tree"));
    const QString old = staging.filePath(QStringLiteral("old"));
    if (!staging.isValid()) {
        *error = staging.errorString();
        return false;
    }
    if (!copyTree(backup.copy, tree, error) || !backedUp(backup.original, error))
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

bool restoreCopy(const Backup &backup, QString *error)
{
    error->clear();
    const QString directory = QFileInfo(backup.original).path();
    if (!makeDirectories(directory)) {
        *error = QStringLiteral("Can't create directory %1").arg(directory);
        return false;
    }
    const QFileInfo copy(backup.copy);
    return copy.isFile() && !copy.isSymLink() ? restoreFile(backup, error) : restoreTree(backup, error);
}
