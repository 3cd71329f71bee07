#include "base/filelock.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"

#include <QElapsedTimer>
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

/// Opens the lock file for the directory of \a path; -1 with errno set when that is impossible.
int openLockFile(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(QFileInfo(linkTarget(path)).path()).constData(), &status) != 0)
        return -1;
    const QString directory = privateDirectory();
    if (directory.isEmpty()) {
        errno = EACCES;
        return -1;
    }
    const QString name = directory
                         + QStringLiteral("/qaz-%1-%2.lock")
                               .arg(QString::number(status.st_dev, 16), QString::number(status.st_ino, 16));
    const int file = ::open(QFile::encodeName(name).constData(),
                            O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (file >= 0)
        ::fchmod(file, 0600); // the umask may have taken bits of ours
    return file;
}

/// Whether the lock is ours now. A program that edits again and again would hardly ever let a waiting one in between;
/// so the one that is next holds a place (the file's first byte), and only who holds it may take the lock.
bool tryLock(int file, bool *isNext)
{
    struct flock place = {};
    place.l_type = F_WRLCK;
    place.l_len = 1;
    *isNext = *isNext || ::fcntl(file, F_OFD_SETLK, &place) == 0;
    if (!*isNext || ::flock(file, LOCK_EX | LOCK_NB) != 0)
        return false;
    place.l_type = F_UNLCK;
    ::fcntl(file, F_OFD_SETLK, &place);
    return true;
}

} // namespace

FileLock::FileLock(const QString &path)
    : m_file(openLockFile(path))
{
    if (!m_file.isOpen()) {
        m_error = QStringLiteral("Can't lock the directory: %1").arg(systemErrorText(errno));
        return;
    }
    QElapsedTimer timer;
    timer.start();
    bool isNext = false;
    while (!tryLock(m_file.get(), &isNext)) {
        if (timer.hasExpired(patienceMs)) {
            m_error = QStringLiteral("Another program is changing the directory");
            return;
        }
        QThread::msleep(pauseMs);
    }
}
