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
constexpr int pauseMs = 10;

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

} // namespace

FileLock::FileLock(const QString &path)
    : m_file(openLockFile(path))
{
    QElapsedTimer timer;
    timer.start();
    while (!m_file.isOpen() || ::flock(m_file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (!m_file.isOpen() || (errno != EWOULDBLOCK && errno != EINTR)) {
            m_error = QStringLiteral("Can't lock the directory: %1").arg(systemErrorText(errno));
            return;
        }
        if (timer.hasExpired(patienceMs)) {
            m_error = QStringLiteral("Another program is changing the directory");
            return;
        }
        QThread::msleep(pauseMs);
    }
}
