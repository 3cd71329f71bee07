#include "base/editfile.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

constexpr int patienceMs = 2000;
constexpr int pauseMs = 2;

/// Opens the lock file for the directory of \a path; -1 with the reason in \a error when that is impossible.
int openLockFile(const QString &path, QString *error)
{
    const QString target = writableTarget(path, error);
    if (target.isEmpty())
        return -1;
    struct stat status = {};
    ::stat(QFile::encodeName(QFileInfo(target).path()).constData(), &status);
    const QString directory = privateDirectory();
    const QString name = QStringLiteral("%1/qaz-%2-%3.lock")
                             .arg(directory, QString::number(status.st_dev, 16),
                                  QString::number(status.st_ino, 16));
    errno = EACCES;
    const int file = directory.isEmpty()
                         ? -1
                         : ::open(QFile::encodeName(name).constData(),
                                  O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (file < 0)
        *error = QStringLiteral("Can't lock the directory: %1").arg(systemErrorText(errno));
    else
        ::fchmod(file, 0600); // the umask may have taken bits of ours
    return file;
}

/// Whether the lock is ours now. A program that edits again and again would hardly ever let a waiting one in between;
/// so the one that is next holds a place (a lock of another kind), and only who holds it may take the lock.
bool tryLock(int file, bool *isNext)
{
    struct flock place = {};
    place.l_type = F_WRLCK;
    *isNext = *isNext || ::fcntl(file, F_OFD_SETLK, &place) == 0;
    if (!*isNext || ::flock(file, LOCK_EX | LOCK_NB) != 0)
        return false;
    place.l_type = F_UNLCK;
    ::fcntl(file, F_OFD_SETLK, &place);
    return true;
}

} // namespace

FileLock::FileLock(const QString &path)
    : m_file(openLockFile(path, &m_error))
{
    const QDeadlineTimer deadline(patienceMs);
    for (bool isNext = false; m_error.isNull() && !tryLock(m_file.get(), &isNext); QThread::msleep(pauseMs)) {
        if (deadline.hasExpired())
            m_error = QStringLiteral("Another program is changing the directory");
    }
}

bool editFile(const QString &path, const FileEdit &edit, QString *error, const EditFileOptions &options)
{
    const QString target = linkTarget(path);
    const FileLock lock(target);
    if (!lock.isHeld())
        return failed(error, lock.error());
    const FileContent file = readRegularFile(target, options.limit);
    if (file.state == FileState::Unreadable)
        return failed(error, file.error);
    const std::optional<QByteArray> content = edit(file.content);
    if (!content)
        return false;
    if (*content == file.content)
        return true;
    if (options.beforeReplace && file.state == FileState::Regular)
        options.beforeReplace(path);
    if (content->isEmpty() && options.removeWhenEmpty)
        return QFile::remove(target) || failed(error, systemErrorText(errno));
    return replaceFile(target, *content, error, options.newFileMode);
}

bool editFileOrTell(const QString &path, const FileEdit &edit, const EditFileOptions &options)
{
    QString error;
    const bool isDone = editFile(path, edit, &error, options);
    if (!isDone)
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, error));
    return isDone;
}
