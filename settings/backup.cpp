#include "settings/backup.h"

#include "base/diagnostics.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "settings/backupmanifest.h"
#include "settings/treecopy.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace {

constexpr int copiesKept = 10;

QString backupDirectory()
{
    return xdgDirectory("XDG_STATE_HOME", "/.local/state") + QLatin1String("/qaz/backup");
}

std::filesystem::path toPath(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

void remove(const QString &path)
{
    std::error_code ignored;
    std::filesystem::remove_all(toPath(path), ignored);
}

/// \a fileName as a part of another name: without control characters, and short enough to be prefixed.
QString namePart(const QString &fileName)
{
    QString part = fileName.left(60);
    for (QChar &character : part) {
        if (!character.isPrint())
            character = QLatin1Char('_');
    }
    return part;
}

/// A name in \a directory that is free: UTC time, then the file's own name.
QString freeName(const QString &directory, const QString &fileName)
{
    const QString time = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmss.zzz'Z'"));
    const QString part = namePart(fileName);
    QString name = time + QLatin1Char('-') + part;
    for (int i = 2; QFileInfo::exists(directory + QLatin1Char('/') + name); ++i)
        name = time + QLatin1Char('-') + QString::number(i) + QLatin1Char('-') + part;
    return name;
}

bool liesIn(const QString &path, const QString &directory)
{
    std::error_code ignored;
    const auto canonical = [&ignored](const QString &name) {
        return std::filesystem::weakly_canonical(toPath(name), ignored) / "";
    };
    const std::string outer = canonical(directory).native();
    return canonical(path).native().compare(0, outer.size(), outer) == 0;
}

/// Adds the new copy to the manifest and removes those of its original that are too many.
bool recordCopy(const QString &directory, const ManifestEntry &entry, QString *error)
{
    const QString manifest = directory + QLatin1String("/manifest");
    QVector<ManifestEntry> entries = readManifest(manifest);
    entries.append(entry);
    QVector<int> places;
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).original == entry.original)
            places.append(i);
    }
    QStringList surplus;
    for (int i = places.size() - copiesKept; i >= 1; --i) // not the first one
        surplus.append(entries.takeAt(places.at(i)).copy);
    if (!writeManifest(manifest, entries, error))
        return false;
    for (const QString &copy : qAsConst(surplus))
        remove(directory + QLatin1Char('/') + copy);
    return true;
}

/// The copy of \a path; empty, with the reason in \a error unless there was nothing to copy.
QString copyOf(const QString &path, QString *error)
{
    const QString original = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const QFileInfo info(original);
    if (!info.isSymLink() && !info.exists())
        return {};

    const QString directory = backupDirectory();
    if (!info.isSymLink() && liesIn(directory, original)) {
        *error = QStringLiteral("the backups lie in it"); // a copy without end
        return {};
    }
    if (!makeDirectories(directory)) {
        *error = QStringLiteral("can't create %1").arg(directory);
        return {};
    }
    const FileLock lock(directory + QLatin1String("/manifest"));
    if (!lock.isHeld()) {
        *error = lock.error();
        return {};
    }
    // Complete before it gets its name: what a killed program leaves can't be taken for a copy.
    const QString partial = directory + QLatin1String("/.partial");
    remove(partial);
    const QString name = freeName(directory, info.fileName());
    QString copy = directory + QLatin1Char('/') + name;
    // A link to a file is backed up as the file: its bytes are what can get lost.
    const bool copied = info.isFile() ? copyFile(original, partial, error)
                                      : copyTree(original, partial, error);
    std::error_code failure;
    if (copied)
        std::filesystem::rename(toPath(partial), toPath(copy), failure);
    if (failure)
        *error = QString::fromLocal8Bit(failure.message().c_str());
    if (copied && !failure && recordCopy(directory, {name, original}, error))
        return copy;
    remove(partial);
    remove(copy);
    return {};
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
    const QString directory = backupDirectory() + QLatin1Char('/');
    QVector<Backup> result;
    for (const ManifestEntry &entry : readManifest(directory + QLatin1String("manifest"))) {
        if (QFileInfo::exists(directory + entry.copy))
            result.append({directory + entry.copy, entry.original});
    }
    return result;
}
