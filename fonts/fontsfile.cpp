#include "fonts/fontsfile.h"

#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "settings/backup.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr qint64 sizeLimit = 16 * 1024 * 1024;
constexpr std::chrono::milliseconds lockTimeout = 2s;
constexpr std::chrono::milliseconds lockPause = 10ms;
// A small file is written in less; the number of a process may have been given out again.
constexpr std::chrono::seconds orphanedLockAge = 1s;
constexpr std::chrono::seconds anonymousLockAge = 1min;
constexpr std::chrono::seconds livingLockAge = 10min;

/// Removes the lock \a path when it is older than its writer can live.
void removeStaleLock(const QByteArray &path)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0)
        return;
    // A clock may have been set back.
    const std::chrono::seconds age(std::abs(std::time(nullptr) - status.st_mtime));
    const auto owner = pid_t(readRegularFile(QFile::decodeName(path)).content.trimmed().toUInt());
    const auto lifetime = owner == 0                                ? anonymousLockAge
                          : ::kill(owner, 0) == 0 || errno == EPERM ? livingLockAge
                                                                    : orphanedLockAge;
    if (age > lifetime)
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
    while (const FcChar8 *file = list ? FcStrListNext(list.get()) : nullptr)
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

void loadFontconfig()
{
    const std::unique_ptr<FcConfig, Release<FcConfigDestroy>> config(FcConfigCreate());
    if (!FcConfigParseAndLoad(config.get(), nullptr, FcTrue))
        return;
    const std::unique_ptr<FcStrList, Release<FcStrListDone>> caches(FcConfigGetCacheDirs(config.get()));
    if (FcStrListNext(caches.get()))
        FcConfigSetCurrent(config.get());
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

QString chooseFontsFile(const QStringList &configFiles)
{
    const QString home = QDir::cleanPath(homeDirectory()) + QLatin1Char('/');
    QStringList candidates;
    for (const QString &file : configFiles) {
        const QString path = QDir::cleanPath(file);
        if (QFileInfo(path).isFile() && path.startsWith(home))
            candidates.append(path);
    }
    candidates = candidates.filter(QRegularExpression(QStringLiteral("/\\.?fonts\\.conf$"))) + candidates;
    if (!candidates.isEmpty())
        return candidates.first();
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

FontsFileLock::FontsFileLock(const QString &path)
    : m_target(QFile::encodeName(linkTarget(path)))
    , m_atomic(m_target.isEmpty() ? nullptr
                                  : FcAtomicCreate(reinterpret_cast<const FcChar8 *>(m_target.constData())))
{
    const QFileInfo directory(QFileInfo(QFile::decodeName(m_target)).path());
    if (!m_atomic || !directory.isDir() || !directory.isWritable()) {
        m_error = QStringLiteral("No file can be made in its directory");
        return;
    }
    const QDeadlineTimer deadline(lockTimeout);
    // Whoever holds it is about to write a small file: waiting saves the user from doing it all again.
    while (!FcAtomicLock(m_atomic.get())) {
        if (deadline.hasExpired()) {
            m_error = QStringLiteral("Another program has locked it");
            return;
        }
        removeStaleLock(m_target + ".LCK");
        std::this_thread::sleep_for(lockPause);
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
    if (::access(m_target.constData(), W_OK) != 0 && errno != ENOENT) {
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
