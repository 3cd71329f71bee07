#include "base/atomicfile.h"

#include "base/chandle.h"
#include "base/descriptor.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryFile>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr int linkLimit = 40; // what the kernel follows, too
constexpr char temporaryName[] = ".qaz-XXXXXX";
constexpr std::time_t staleSeconds = 3600;

/// Reads to the end of a file of about \a size bytes; it may grow or shrink meanwhile, and files of the kernel
/// state no size at all. Fails with errno set.
bool readAll(int descriptor, qint64 size, qint64 limit, QByteArray *content)
{
    constexpr int spare = 4096;
    content->resize(int(qMin(size, limit)) + 1); // one more, to meet the end without growing
    int length = 0;
    for (;;) {
        const ssize_t got = ::read(descriptor, content->data() + length, size_t(content->size() - length));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return false;
        length += int(got);
        if (got == 0)
            break;
        if (length > limit) {
            errno = EFBIG;
            return false;
        }
        if (length == content->size())
            content->resize(length + length / 2 + spare);
    }
    content->resize(length);
    return true;
}

void copyExtendedAttributes(int from, int to)
{
    const ssize_t size = ::flistxattr(from, nullptr, 0);
    if (size <= 0)
        return;
    QByteArray names(int(size), '\0');
    names.truncate(int(qMax<ssize_t>(0, ::flistxattr(from, names.data(), size_t(names.size())))));
    for (const QByteArray &name : names.split('\0')) {
        const ssize_t length = name.isEmpty() ? -1 : ::fgetxattr(from, name.constData(), nullptr, 0);
        if (length < 0)
            continue;
        QByteArray value(int(length), '\0');
        if (::fgetxattr(from, name.constData(), value.data(), size_t(length)) == length)
            ::fsetxattr(to, name.constData(), value.constData(), size_t(length), 0);
    }
}

mode_t processUmask()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return mask;
}

/// ".qaz-XXXXXX", or ".qaz-word-XXXXXX" for what is more than a file.
bool isTemporaryName(const QByteArray &name)
{
    constexpr int randomLength = 6;
    const int prefix = int(sizeof ".qaz-") - 1;
    const QByteArray random = name.right(randomLength);
    return name.startsWith(".qaz-") && name.size() >= prefix + randomLength
           && name.at(name.size() - randomLength - 1) == '-'
           && std::all_of(random.begin(), random.end(), [](char c) { return std::isalnum(uchar(c)); });
}

bool isReplaceable(const QByteArray &path, QString *error)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0) {
        if (errno == ENOENT)
            return true;
        *error = systemErrorText(errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        *error = S_ISDIR(status.st_mode) ? systemErrorText(EISDIR) : QStringLiteral("Not a regular file");
        return false;
    }
    // A rename would replace a write-protected file as well; its protection is the user's word.
    if (::access(path.constData(), W_OK) != 0) {
        *error = systemErrorText(errno);
        return false;
    }
    return true;
}

} // namespace

bool takeOverAttributes(int newFile, const QByteArray &oldPath, unsigned newFileMode)
{
    const Descriptor old(::open(oldPath.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (!old.isOpen() || ::fstat(old.get(), &status) != 0)
        return errno == ENOENT
               && ::fchmod(newFile, (newFileMode & ~processUmask()) | (newFileMode & 0600)) == 0;
    copyExtendedAttributes(old.get(), newFile);
    if (::fchown(newFile, status.st_uid, status.st_gid) != 0
        && (status.st_uid != ::geteuid() || ::fchown(newFile, uid_t(-1), status.st_gid) != 0)
        && status.st_uid != ::geteuid())
        return false;
    return ::fchmod(newFile, status.st_mode & 07777) == 0;
}

FileContent readRegularFile(const QString &path, qint64 limit)
{
    FileContent result;
    const QByteArray name = QFile::encodeName(path);
    const Descriptor file(::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (!file.isOpen() && (errno == ENOENT || errno == ENOTDIR))
        return result;
    result.state = FileState::Unreadable;
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0) {
        result.error = systemErrorText(errno);
        return result;
    }
    if (!S_ISREG(status.st_mode)) {
        result.error = S_ISDIR(status.st_mode) ? systemErrorText(EISDIR)
                                               : QStringLiteral("Not a regular file");
        return result;
    }
    if (readAll(file.get(), status.st_size, limit, &result.content))
        result.state = FileState::Regular;
    else
        result = {FileState::Unreadable, {}, systemErrorText(errno)};
    return result;
}

void removeStaleTemporaries(const QString &directory)
{
    const std::unique_ptr<DIR, Release<::closedir>> entries(
        ::opendir(QFile::encodeName(directory).constData()));
    const std::time_t newest = std::time(nullptr) - staleSeconds;
    while (const dirent *entry = entries ? ::readdir(entries.get()) : nullptr) {
        struct stat status = {};
        std::error_code ignored;
        if (isTemporaryName(entry->d_name)
            && ::fstatat(::dirfd(entries.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0
            && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)) && status.st_uid == ::geteuid()
            && status.st_mtime < newest)
            std::filesystem::remove_all(
                std::filesystem::path(QFile::encodeName(directory).toStdString()) / entry->d_name, ignored);
    }
}

QString linkTarget(const QString &path)
{
    QString target = path;
    for (int hops = 0; hops < linkLimit; ++hops) {
        const QFileInfo info(target);
        if (!info.isSymLink())
            return target;
        target = info.symLinkTarget();
    }
    return {};
}

bool replaceFile(const QString &path, const QByteArray &content, QString *error, unsigned newFileMode)
{
    const QString target = linkTarget(path);
    if (target.isEmpty()) {
        *error = systemErrorText(ELOOP);
        return false;
    }
    const QByteArray name = QFile::encodeName(target);
    if (!isReplaceable(name, error))
        return false;
    const QString directory = QFileInfo(target).path();
    if (!makeDirectories(directory)) {
        *error = QStringLiteral("Can't create directory %1").arg(directory);
        return false;
    }

    removeStaleTemporaries(directory);
    // A write beyond the limit of the file size fails as on a full disk; the signal would end the process.
    const auto putBack = qScopeGuard(
        [before = std::signal(SIGXFSZ, SIG_IGN)] { std::signal(SIGXFSZ, before); });
    QTemporaryFile file(directory + QLatin1Char('/') + QLatin1String(temporaryName));
    const bool isReplaced = file.open() && file.write(content) == content.size() && file.flush()
                            && takeOverAttributes(file.handle(), name, newFileMode)
                            && ::fsync(file.handle()) == 0
                            && ::rename(QFile::encodeName(file.fileName()).constData(), name.constData())
                                   == 0;
    if (!isReplaced) {
        *error = file.error() != QFileDevice::NoError ? file.errorString() : systemErrorText(errno);
        return false;
    }
    file.setAutoRemove(false);
    const Descriptor parent(::open(QFile::encodeName(directory).constData(), O_RDONLY | O_CLOEXEC));
    if (parent.isOpen())
        ::fsync(parent.get());
    return true;
}
