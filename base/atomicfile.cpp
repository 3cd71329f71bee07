#include "base/atomicfile.h"

#include "base/descriptor.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryFile>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr int linkLimit = 40; // what the kernel follows, too
constexpr char temporaryName[] = ".qaz-XXXXXX";
constexpr int staleSeconds = 3600;

/// Why nobody reads or replaces what stands there; null for a regular file.
QString kindError(mode_t mode)
{
    if (S_ISREG(mode))
        return {};
    return S_ISDIR(mode) ? systemErrorText(EISDIR) : QStringLiteral("Not a regular file");
}

/// Why nothing may take the place of \a name; null when it may.
QString obstacleAt(const QByteArray &name)
{
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        return errno == ENOENT ? QString() : systemErrorText(errno);
    // A rename would replace a write-protected file as well; its protection is the user's word.
    if (S_ISREG(status.st_mode) && ::access(name.constData(), W_OK) != 0)
        return systemErrorText(errno);
    return kindError(status.st_mode);
}

void copyExtendedAttributes(int from, int to)
{
    char names[XATTR_LIST_MAX], value[XATTR_SIZE_MAX];
    const ssize_t size = ::flistxattr(from, names, sizeof names); // -1 where there can't be any
    for (const QByteArray &name : QByteArray(names, int(qMax(size, ssize_t(0)))).split('\0')) {
        const ssize_t length = ::fgetxattr(from, name.constData(), value, sizeof value);
        if (length >= 0)
            ::fsetxattr(to, name.constData(), value, size_t(length), 0);
    }
}

} // namespace

bool takeOverAttributes(int newFile, const QByteArray &oldPath, unsigned newFileMode)
{
    const Descriptor old(::open(oldPath.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!old.isOpen()) {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return errno == ENOENT && ::fchmod(newFile, newFileMode & (~mask | 0600)) == 0;
    }
    struct stat status = {};
    ::fstat(old.get(), &status);
    copyExtendedAttributes(old.get(), newFile);
    // A group that its owner is not in can't be kept.
    if (::fchown(newFile, status.st_uid, status.st_gid) != 0 && status.st_uid != ::geteuid())
        return false;
    return ::fchmod(newFile, status.st_mode & 07777) == 0;
}

FileContent readRegularFile(const QString &path, qint64 limit)
{
    const auto unreadable = [](const QString &error) {
        return FileContent{FileState::Unreadable, {}, error};
    };
    const Descriptor opened(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!opened.isOpen())
        return errno == ENOENT || errno == ENOTDIR ? FileContent() : unreadable(systemErrorText(errno));
    QFile file;
    file.open(opened.get(), QIODevice::ReadOnly | QIODevice::Unbuffered);
    struct stat status = {};
    ::fstat(opened.get(), &status);
    if (const QString error = kindError(status.st_mode); !error.isNull())
        return unreadable(error);

    if (status.st_size > limit)
        return unreadable(systemErrorText(EFBIG));
    FileContent result{FileState::Regular, file.readAll(), {}};
    return file.error() == QFileDevice::NoError ? result : unreadable(file.errorString());
}

QString linkTarget(const QString &path)
{
    QFileInfo info(path);
    for (int hops = 0; info.isSymLink() && hops < linkLimit; ++hops)
        info.setFile(info.symLinkTarget());
    return info.isSymLink() ? QString() : info.filePath();
}

QString writableTarget(const QString &path, QString *error)
{
    QString target = linkTarget(path);
    const QString directory = QFileInfo(target).path();
    if (target.isEmpty())
        *error = systemErrorText(ELOOP);
    else if (!makeDirectories(directory))
        *error = QStringLiteral("Can't create directory %1").arg(directory);
    else
        return target;
    return {};
}

void removeStaleTemporaries(const QString &directory)
{
    static const QRegularExpression temporary(QStringLiteral("^\\.qaz-(.*-)?[A-Za-z0-9]{6}$"));
    const QDateTime newest = QDateTime::currentDateTime().addSecs(-staleSeconds);
    const auto entries = QDir(directory).entryInfoList(
        {QStringLiteral(".qaz-*")}, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &entry : entries) {
        std::error_code ignored;
        if (entry.lastModified() < newest && entry.ownerId() == ::geteuid()
            && temporary.match(entry.fileName()).hasMatch())
            std::filesystem::remove_all(QFile::encodeName(entry.filePath()).constData(), ignored);
    }
}

bool replaceFile(const QString &path, const QByteArray &content, QString *error, unsigned newFileMode,
                 Durability durability)
{
    const QString target = writableTarget(path, error);
    const QByteArray name = QFile::encodeName(target);
    if (target.isEmpty())
        return false;
    if (const QString obstacle = obstacleAt(name); !obstacle.isNull())
        return failed(error, obstacle);

    const QString directory = QFileInfo(target).path();
    removeStaleTemporaries(directory);
    // A write beyond the limit of the file size fails as on a full disk; the signal would end the process.
    const auto putBack = qScopeGuard(
        [before = std::signal(SIGXFSZ, SIG_IGN)] { std::signal(SIGXFSZ, before); });
    const auto sync = [durability](int descriptor) {
        return durability == Durability::Remade || ::fsync(descriptor) == 0;
    };
    QTemporaryFile file(directory + QLatin1Char('/') + QLatin1String(temporaryName));
    const bool isReplaced = file.open() && file.write(content) == content.size() && file.flush()
                            && takeOverAttributes(file.handle(), name, newFileMode) && sync(file.handle())
                            && ::rename(QFile::encodeName(file.fileName()).constData(), name.constData())
                                   == 0; // which leaves nothing to remove
    if (!isReplaced)
        return failed(error,
                      file.error() != QFileDevice::NoError ? file.errorString() : systemErrorText(errno));
    sync(Descriptor(::open(QFile::encodeName(directory).constData(), O_RDONLY | O_CLOEXEC)).get());
    return true;
}
