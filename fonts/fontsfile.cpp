#include "fonts/fontsfile.h"

#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "settings/backup.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 sizeLimit = 16 * 1024 * 1024;
constexpr int lockTimeoutMs = 2000;
constexpr int lockPauseMs = 10;
// In seconds. A small file is written in less; the number of a process may have been given out again.
constexpr std::time_t orphanedLockAge = 1;
constexpr std::time_t anonymousLockAge = 60;
constexpr std::time_t livingLockAge = 600;

/// Removes the lock \a path when it is older than its writer can live.
void removeStaleLock(const QByteArray &path)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0)
        return;
    const auto age = std::abs(std::time(nullptr) - status.st_mtime); // a clock may have been set back
    const bool namesOwner = S_ISREG(status.st_mode) && status.st_size > 0;
    const pid_t owner = pid_t(readRegularFile(QFile::decodeName(path), 100).content.trimmed().toInt());
    const bool isAlive = owner > 0 && (::kill(owner, 0) == 0 || errno == EPERM);
    if (age > (!namesOwner ? anonymousLockAge : isAlive ? livingLockAge : orphanedLockAge))
        std::remove(path.constData());
}

QStringList userFontsFiles()
{
    return {homeDirectory() + QLatin1String("/.fonts.conf"), userFontsFile()};
}

} // namespace

QStringList fontconfigFiles()
{
    QStringList files;
    const std::unique_ptr<FcStrList, Release<FcStrListDone>> list(
        FcConfigGetConfigFiles(FcConfigGetCurrent()));
    if (!list)
        return files;
    while (const FcChar8 *file = FcStrListNext(list.get()))
        files.append(QFile::decodeName(reinterpret_cast<const char *>(file)));
    return files;
}

void guardFontconfig()
{
    for (const QString &path : userFontsFiles()) {
        const QFileInfo info(path);
        if (info.exists() && !info.isFile() && !info.isDir()) {
            printDiagnostic(QStringLiteral("Can't use %1: Not a regular file").arg(path));
            FcConfigEnableHome(FcFalse);
        }
    }
}

QString userFontsFile()
{
    return xdgDirectory("XDG_CONFIG_HOME", "/.config") + QLatin1String("/fontconfig/fonts.conf");
}

void removeUserFontconfigFiles()
{
    for (const QString &path : userFontsFiles()) {
        if (!QFileInfo(path).isFile())
            continue;
        const QString copy = backUp(path);
        if (QFile::remove(path) && !copy.isEmpty())
            printDiagnostic(QStringLiteral("Removed %1, a copy is %2").arg(path, copy));
    }
}

QString chooseFontsFile(const QStringList &configFiles, bool system)
{
    const QString home = QDir::cleanPath(homeDirectory()) + QLatin1Char('/');
    QStringList candidates;
    for (const QString &file : configFiles) {
        const QFileInfo info(QDir::cleanPath(file));
        const QString path = info.filePath();
        if (info.isFile() && (system || path.startsWith(home)))
            candidates.append(path);
        if (system && info.isDir() && path.contains(QRegularExpression(QStringLiteral("/conf\\.d?$"))))
            return path + QLatin1String("/29-qaz-rendering.conf");
    }
    const QRegularExpression wanted(system ? QStringLiteral("/local\\.conf$")
                                           : QStringLiteral("/\\.?fonts\\.conf$"));
    candidates = candidates.filter(wanted) + candidates;
    if (!candidates.isEmpty())
        return candidates.first();
    if (system)
        return QStringLiteral("/etc/fonts/local.conf");
    makeDirectories(QFileInfo(userFontsFile()).path());
    return userFontsFile();
}

FileContent readFontsFile(const QString &path)
{
    FileContent file = readRegularFile(path, sizeLimit);
    // Whatever the link is to lead to (an unmounted disk?), it is not ours to make.
    if (file.state == FileState::Missing && QFileInfo(path).isSymLink())
        return {FileState::Unreadable, {}, QStringLiteral("It is a link to a file that does not exist")};
    return file;
}

bool canMakeFile(const QString &path)
{
    const QFileInfo directory(QFileInfo(path).path());
    return directory.isDir() && directory.isWritable();
}

FontsFileLock::FontsFileLock(const QString &path)
    : m_target(QFile::encodeName(linkTarget(path)))
    , m_atomic(m_target.isEmpty() ? nullptr
                                  : FcAtomicCreate(reinterpret_cast<const FcChar8 *>(m_target.constData())))
{
    if (!m_atomic || !canMakeFile(QFile::decodeName(m_target))) {
        m_error = QStringLiteral("No file can be made in its directory");
        return;
    }
    QElapsedTimer timer;
    timer.start();
    // Whoever holds it is about to write a small file: waiting saves the user from doing it all again.
    while (!FcAtomicLock(m_atomic.get())) {
        if (timer.hasExpired(lockTimeoutMs)) {
            m_error = QStringLiteral("Another program has locked it");
            return;
        }
        removeStaleLock(m_target + ".LCK");
        QThread::msleep(lockPauseMs);
    }
}

FontsFileLock::~FontsFileLock()
{
    if (isHeld())
        FcAtomicUnlock(m_atomic.get());
}

bool FontsFileLock::replace(const QByteArray &content, const std::function<bool()> &isCurrent, QString *error)
{
    // A rename would replace a write-protected file as well; its protection is the user's word.
    if (::access(m_target.constData(), F_OK) == 0 && ::access(m_target.constData(), W_OK) != 0) {
        *error = systemErrorText(errno);
        return false;
    }
    QFile file(QFile::decodeName(reinterpret_cast<const char *>(FcAtomicNewFile(m_atomic.get()))));
    if (!replaceFile(file.fileName(), content, error))
        return false;
    const bool takesOver = file.open(QIODevice::ReadOnly)
                           && takeOverAttributes(file.handle(), m_target, 0666);
    const bool isWanted = takesOver && isCurrent();
    if (isWanted && FcAtomicReplaceOrig(m_atomic.get()))
        return true;
    if (isWanted || !takesOver)
        *error = systemErrorText(errno);
    FcAtomicDeleteNew(m_atomic.get());
    return false;
}
