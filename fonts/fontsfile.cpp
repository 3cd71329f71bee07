#include "fonts/fontsfile.h"

#include "fonts/fontsitem.h"
#include "settings/directories.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 sizeLimit = 16 * 1024 * 1024;
constexpr int lockTries = 100;
constexpr int lockPauseMs = 10;

using FcStrListPtr = std::unique_ptr<FcStrList, Release<FcStrListDone>>;

bool matches(const QString &path, const char *pattern)
{
    return QRegularExpression(QLatin1String(pattern)).match(path).hasMatch();
}

QString userDefault()
{
    QString file = userFontsFile();
    const QString directory = QFileInfo(file).path();
    if (!QFileInfo(directory).isDir()) {
        QDir().mkpath(QFileInfo(directory).path());
        ::mkdir(QFile::encodeName(directory).constData(), 0700);
    }
    return file;
}

QString systemErrorText()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace

QStringList fontconfigFiles()
{
    QStringList files;
    const FcStrListPtr list(FcConfigGetConfigFiles(FcConfigGetCurrent()));
    if (!list)
        return files;
    while (const FcChar8 *file = FcStrListNext(list.get()))
        files.append(QFile::decodeName(reinterpret_cast<const char *>(file)));
    return files;
}

QString userFontsFile()
{
    QString configuration = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
    if (configuration.isEmpty())
        configuration = directoryPath(DirectoryKind::Home) + QLatin1String("/.config");
    return configuration + QLatin1String("/fontconfig/fonts.conf");
}

QString chooseFontsFile(const QStringList &configFiles, bool system)
{
    const QString home = directoryFormOfPath(directoryPath(DirectoryKind::Home));
    QStringList candidates;
    for (const QString &file : configFiles) {
        const QFileInfo info(file);
        const QString path = fileFormOfPath(directoryFormOfPath(file));
        if (info.isFile() && (system || path.startsWith(home)))
            candidates.append(path);
        if (system && info.isDir() && matches(file, "/conf\\.d/?$|/conf\\.d?$"))
            return directoryFormOfPath(file) + QLatin1String("29-qaz-rendering.conf");
    }
    for (const QString &candidate : qAsConst(candidates)) {
        if (matches(candidate, system ? "/local\\.conf$" : "/\\.?fonts\\.conf$"))
            return candidate;
    }
    if (!candidates.isEmpty())
        return candidates.first();
    return system ? QStringLiteral("/etc/fonts/local.conf") : userDefault();
}

FileContent readFontsFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.isFile() && info.size() > sizeLimit)
        return {FileState::Unreadable, {}, QStringLiteral("It is too big for a configuration")};
    FileContent file = readRegularFile(path);
    // Whatever the link is to lead to (an unmounted disk?), it is not ours to make.
    if (file.state == FileState::Missing && info.isSymLink())
        return {FileState::Unreadable, {}, QStringLiteral("It is a link to a file that does not exist")};
    return file;
}

QString fontsFileStamp(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    // Two writes can fall into one tick of the clock.
    return QStringLiteral("%1.%2 %3 %4")
        .arg(QString::number(status.st_mtim.tv_sec), QString::number(status.st_mtim.tv_nsec),
             QString::number(status.st_ino), QString::number(status.st_size));
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
    if (!m_atomic || !canMakeFile(QFile::decodeName(m_target)))
        return;
    // Whoever holds it is about to write a small file: waiting saves the user from doing it all again.
    for (int i = 0; !m_held && i < lockTries; ++i) {
        if (i > 0)
            QThread::msleep(lockPauseMs);
        m_held = FcAtomicLock(m_atomic.get());
    }
}

FontsFileLock::~FontsFileLock()
{
    if (m_held)
        FcAtomicUnlock(m_atomic.get());
}

bool FontsFileLock::replace(const QByteArray &content, QString *error)
{
    // A rename would replace a write-protected file as well; its protection is the user's word.
    const char *target = m_target.constData();
    if (!m_held || (::access(target, F_OK) == 0 && ::access(target, W_OK) != 0)) {
        *error = m_held ? systemErrorText() : QStringLiteral("Another program is changing it");
        return false;
    }
    QFile file(QFile::decodeName(reinterpret_cast<const char *>(FcAtomicNewFile(m_atomic.get()))));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        *error = file.errorString();
        return false;
    }
    errno = 0;
    const bool replaced = file.write(content) == content.size()
                          && takeOverAttributes(file.handle(), m_target, 0666) && ::fsync(file.handle()) == 0
                          && FcAtomicReplaceOrig(m_atomic.get());
    if (!replaced) {
        *error = file.error() != QFileDevice::NoError ? file.errorString() : systemErrorText();
        FcAtomicDeleteNew(m_atomic.get());
    }
    return replaced;
}
