#include "settings/backup.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "settings/directories.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int copiesKept = 10;

struct Entry {
    QByteArray copy;     // file name in the backup directory
    QByteArray original; // encoded path
};

QString backupDirectory()
{
    const QByteArray state = qgetenv("XDG_STATE_HOME");
    const QString base = state.startsWith('/')
                             ? QFile::decodeName(state)
                             : directoryPath(DirectoryKind::Home) + QLatin1String("/.local/state");
    return base + QLatin1String("/qaz/backup");
}

/// Paths may hold tabs and newlines; a manifest line may not.
QByteArray escapedPath(const QString &path)
{
    QByteArray text = QFile::encodeName(path);
    return text.replace('\\', "\\\\").replace('\n', "\\n").replace('\t', "\\t");
}

QList<Entry> readManifest(const QString &manifest)
{
    QList<Entry> entries;
    for (const QByteArray &line : readRegularFile(manifest).content.split('\n')) {
        const int tab = line.indexOf('\t');
        if (tab > 0)
            entries.append({line.left(tab), line.mid(tab + 1)});
    }
    return entries;
}

QByteArray manifestText(const QList<Entry> &entries)
{
    QByteArray text;
    for (const Entry &entry : entries)
        text += entry.copy + '\t' + entry.original + '\n';
    return text;
}

bool isLink(const QString &path)
{
    return QFileInfo(path).isSymLink();
}

void remove(const QString &path)
{
    if (!isLink(path) && QFileInfo(path).isDir())
        QDir(path).removeRecursively();
    else
        QFile::remove(path);
}

void copyTimes(const QString &from, const QString &to)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(from).constData(), &status) == 0) {
        const timespec times[] = {status.st_atim, status.st_mtim};
        ::utimensat(AT_FDCWD, QFile::encodeName(to).constData(), times, AT_SYMLINK_NOFOLLOW);
    }
}

bool copyLink(const QString &from, const QString &to)
{
    QByteArray target(4096, '\0');
    const ssize_t size = ::readlink(QFile::encodeName(from).constData(), target.data(),
                                    size_t(target.size()));
    target.truncate(int(qMax<ssize_t>(0, size)));
    return ::symlink(target.constData(), QFile::encodeName(to).constData()) == 0;
}

bool copyFile(const QString &from, const QString &to, QString *error)
{
    const FileContent file = readRegularFile(from);
    if (file.state != FileState::Regular) {
        *error = file.error;
        return false;
    }
    return replaceFile(to, file.content, error, 0600);
}

bool copyTree(const QString &from, const QString &to, QString *error)
{
    if (isLink(from)) {
        if (copyLink(from, to))
            return true;
        *error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    struct stat status = {};
    if (::lstat(QFile::encodeName(from).constData(), &status) != 0) {
        *error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    bool copied = true;
    if (S_ISREG(status.st_mode)) {
        copied = copyFile(from, to, error);
    } else if (S_ISDIR(status.st_mode)) {
        if (!QDir().mkdir(to)) {
            *error = QStringLiteral("Can't create %1").arg(to);
            return false;
        }
        QDirIterator entries(from, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (entries.hasNext()) {
            entries.next();
            copied = copyTree(entries.filePath(), to + QLatin1Char('/') + entries.fileName(), error)
                     && copied;
        }
    }
    // Sockets, FIFOs and devices hold no bytes to lose.
    copyTimes(from, to);
    return copied;
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

/// Adds the new copy to the manifest and removes the oldest ones of its original.
bool recordCopy(const QString &directory, const Entry &entry, QString *error)
{
    const QString manifest = directory + QLatin1String("/manifest");
    QList<Entry> entries = readManifest(manifest);
    entries.append(entry);
    int surplus = -copiesKept;
    for (const Entry &other : qAsConst(entries))
        surplus += other.original == entry.original ? 1 : 0;
    for (int i = 0; surplus > 0 && i < entries.size();) {
        if (entries.at(i).original != entry.original) {
            ++i;
            continue;
        }
        remove(directory + QLatin1Char('/') + QFile::decodeName(entries.takeAt(i).copy));
        --surplus;
    }
    return replaceFile(manifest, manifestText(entries), error, 0600);
}

/// The copy of \a path; empty, with the reason in \a error unless there was nothing to copy.
QString copyOf(const QString &path, QString *error)
{
    const QString original = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (!isLink(original) && !QFileInfo::exists(original))
        return {};

    const QString directory = backupDirectory();
    if (!isLink(original) && QString(directory + QLatin1Char('/')).startsWith(original + QLatin1Char('/'))) {
        *error = QStringLiteral("the backups lie in it"); // a copy without end
        return {};
    }
    if (!QDir().mkpath(directory)) {
        *error = QStringLiteral("can't create %1").arg(directory);
        return {};
    }
    const DirectoryLock lock(directory + QLatin1String("/manifest"));
    if (!lock.isHeld()) {
        *error = lock.error();
        return {};
    }
    const QString name = freeName(directory, QFileInfo(original).fileName());
    const QString copy = directory + QLatin1Char('/') + name;
    // A link to a file is backed up as the file: its bytes are what can get lost.
    const bool asFile = QFileInfo(original).isFile();
    const bool copied = (asFile ? copyFile(original, copy, error) : copyTree(original, copy, error))
                        && recordCopy(directory, {QFile::encodeName(name), escapedPath(original)}, error);
    return copied ? copy : QString();
}

} // namespace

QString backUp(const QString &path, QString *error)
{
    QString reason;
    const QString copy = copyOf(path, &reason);
    if (!reason.isEmpty())
        printDiagnostic(QStringLiteral("Can't back up %1: %2").arg(path, reason));
    if (error)
        *error = reason;
    return copy;
}
