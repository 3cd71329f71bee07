#pragma once

#include "tests/support/environment.h"

#include <sys/stat.h>

/// A home of a test's own: HOME and every XDG directory point into a temporary directory until the end of the
/// scope, Qt's settings included. The directories below it do not exist until something makes them.
class TemporaryHome
{
public:
    TemporaryHome()
    {
        if (!m_directory.isValid())
            qFatal("No temporary home: %s", qPrintable(m_directory.errorString()));
        // Qt computes these once per process; a second home must not see the first one's.
        for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
            QSettings::setPath(format, QSettings::UserScope, path(".config"_s));
    }

    /// The absolute path of \a relative below the home; the home itself for an empty text.
    QString path(const QString &relative = {}) const { return QDir(m_directory.path()).filePath(relative); }
    /// Writes a file below the home, with its directories, and returns its absolute path.
    QString write(const QString &relative, const QByteArray &content) const
    {
        QString name = path(relative);
        QDir().mkpath(QFileInfo(name).path());
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("Can't write %s", qPrintable(name));
        return name;
    }
    /// The content of a file below the home; a null array when there is none.
    QByteArray read(const QString &relative) const
    {
        QFile file(path(relative));
        return file.open(QIODevice::ReadOnly) ? "" + file.readAll() : QByteArray();
    }
    bool exists(const QString &relative) const { return QFileInfo::exists(path(relative)); }
    bool makeDirectory(const QString &relative) const { return QDir().mkpath(path(relative)); }
    /// Makes a FIFO in an existing directory and returns its absolute path.
    QString makeFifo(const QString &relative) const
    {
        QString name = path(relative);
        if (::mkfifo(QFile::encodeName(name).constData(), 0600) != 0)
            qFatal("Can't make %s", qPrintable(name));
        return name;
    }
    /// The permission bits of what stands there, through a link; 0 when nothing does.
    unsigned mode(const QString &relative) const
    {
        struct stat status = {};
        ::stat(QFile::encodeName(path(relative)).constData(), &status);
        return status.st_mode & 07777;
    }
    /// The names in a directory below the home, hidden ones included, with blanks between them.
    QString names(const QString &relative = {}) const
    {
        return QDir(path(relative)).entryList(all).join(u' ');
    }
    /// The contents of the backups, sorted; empty for a directory.
    QByteArrayList backups() const
    {
        const QString directory = ".local/state/qaz/backup/"_s;
        QByteArrayList contents;
        for (const QString &name : QDir(path(directory)).entryList(all)) {
            if (name != "manifest"_s)
                contents.append(read(directory + name));
        }
        std::sort(contents.begin(), contents.end());
        return contents;
    }
    /// Every file below the home with its content's digest and modification time, sorted: equal texts mean
    /// that nothing was written.
    QString fingerprint() const
    {
        QStringList lines;
        QDirIterator files(path(), all, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QFileInfo info(files.next());
            lines.append(info.filePath() + u'>' + info.symLinkTarget());
            if (info.isFile() && !info.isSymLink())
                lines.last() += QString::fromLatin1(
                    QCryptographicHash::hash(read(info.filePath()), QCryptographicHash::Sha1).toHex()
                    + info.lastModified().toString(Qt::ISODateWithMs).toLatin1());
        }
        lines.sort();
        return lines.join(u'\n');
    }

private:
    static constexpr auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

    ScopedEnvironment inHome(const char *name, const char *place) const
    {
        return {name, QFile::encodeName(m_directory.path()) + place};
    }

    QTemporaryDir m_directory;
    ScopedEnvironment m_home = inHome("HOME", ""), m_config = inHome("XDG_CONFIG_HOME", "/.config"),
                      m_data = inHome("XDG_DATA_HOME", "/.local/share"),
                      m_cache = inHome("XDG_CACHE_HOME", "/.cache"),
                      m_state = inHome("XDG_STATE_HOME", "/.local/state"),
                      m_systemData = inHome("XDG_DATA_DIRS", "/system/share"),
                      m_systemConfig = inHome("XDG_CONFIG_DIRS", "/system/xdg"), m_session{"QAZ_SESSION", {}};
};
