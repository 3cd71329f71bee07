#include "app/themefilewatcher.h"

#include "base/atomicfile.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

ThemeFileWatcher::ThemeFileWatcher(const QString &path, QObject *parent)
    : QObject(parent)
    , m_path(path)
    , m_known(state())
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(100); // a replaced file is several changes of its directory
    connect(&m_timer, &QTimer::timeout, this, &ThemeFileWatcher::look);
    for (const auto signal : {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged})
        connect(&m_watcher, signal, &m_timer, qOverload<>(&QTimer::start));
    watch();
}

void ThemeFileWatcher::runOwnChange(const std::function<void()> &change)
{
    const bool wasKnown = state() == m_known;
    change();
    if (wasKnown)
        accept();
}

void ThemeFileWatcher::accept()
{
    m_known = state();
}

void ThemeFileWatcher::lookAgain()
{
    m_timer.start();
}

/// A file that was replaced is no longer watched, and a link may lead elsewhere now.
void ThemeFileWatcher::watch()
{
    const QString target = linkTarget(m_path);
    m_watcher.addPaths({target, QFileInfo(target).path(), QFileInfo(m_path).path()});
}

void ThemeFileWatcher::look()
{
    watch();
    if (state() != m_known)
        emit changedByOthers();
}

/// Differs when the file does: which one it is, its size and its time.
QByteArray ThemeFileWatcher::state() const
{
    struct stat status = {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) != 0)
        return {};
    const qint64 parts[] = {qint64(status.st_dev), qint64(status.st_ino), qint64(status.st_size),
                            qint64(status.st_mtim.tv_sec), qint64(status.st_mtim.tv_nsec)};
    return QByteArray(reinterpret_cast<const char *>(parts), sizeof parts);
}
