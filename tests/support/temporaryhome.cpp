#include "tests/support/temporaryhome.h"

#include "tests/support/testing.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

#include <sys/stat.h>

namespace {

/// With their places below the home; nullptr: unset.
constexpr std::pair<const char *, const char *> variables[] = {{"HOME", ""},
                                                               {"XDG_CONFIG_HOME", "/.config"},
                                                               {"XDG_DATA_HOME", "/.local/share"},
                                                               {"XDG_CACHE_HOME", "/.cache"},
                                                               {"XDG_STATE_HOME", "/.local/state"},
                                                               {"XDG_DATA_DIRS", "/system/share"},
                                                               {"XDG_CONFIG_DIRS", "/system/xdg"},
                                                               {"QAZ_SESSION", nullptr}};

} // namespace

TemporaryHome::TemporaryHome()
{
    if (!m_directory.isValid())
        qFatal("No temporary home: %s", qPrintable(m_directory.errorString()));
    for (const auto &[name, place] : variables) {
        const QByteArray value = place ? QFile::encodeName(m_directory.path()) + place : QByteArray();
        m_environment.push_back(std::make_unique<ScopedEnvironment>(name, value));
    }
    // Qt computes these once per process; a second home must not see the first one's.
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
        QSettings::setPath(format, QSettings::UserScope, path(".config"_s));
}

TemporaryHome::~TemporaryHome() = default;

QString TemporaryHome::path(const QString &relative) const
{
    return relative.isEmpty() ? m_directory.path() : m_directory.path() + QLatin1Char('/') + relative;
}

QString TemporaryHome::write(const QString &relative, const QByteArray &content) const
{
    QString name = path(relative);
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write %s", qPrintable(name));
    return name;
}

QByteArray TemporaryHome::read(const QString &relative) const
{
    QFile file(path(relative));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.readAll();
    return content.isNull() ? QByteArray("") : content;
}

bool TemporaryHome::exists(const QString &relative) const
{
    return QFileInfo::exists(path(relative));
}

bool TemporaryHome::makeDirectory(const QString &relative) const
{
    return QDir().mkpath(path(relative));
}

QString TemporaryHome::makeFifo(const QString &relative) const
{
    QString name = path(relative);
    if (::mkfifo(QFile::encodeName(name).constData(), 0600) != 0)
        qFatal("Can't make %s", qPrintable(name));
    return name;
}

unsigned TemporaryHome::mode(const QString &relative) const
{
    struct stat status = {};
    ::stat(QFile::encodeName(QDir(m_directory.path()).filePath(relative)).constData(), &status);
    return status.st_mode & 07777;
}

QByteArrayList TemporaryHome::backups() const
{
    const QString directory = ".local/state/qaz/backup/"_s;
    QStringList names = QDir(path(directory))
                            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeAll("manifest"_s);
    QByteArrayList contents;
    for (const QString &name : qAsConst(names))
        contents.append(read(directory + name));
    std::sort(contents.begin(), contents.end());
    return contents;
}

QString TemporaryHome::fingerprint() const
{
    QStringList lines;
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QDirIterator files(m_directory.path(), all, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo info(files.next());
        QString line = info.filePath();
        if (info.isSymLink())
            line += QLatin1String(" -> ") + info.symLinkTarget();
        else if (info.isFile()) {
            QFile file(info.filePath());
            QCryptographicHash hash(QCryptographicHash::Sha1);
            if (file.open(QIODevice::ReadOnly))
                hash.addData(&file);
            line += u' ' + QString::fromLatin1(hash.result().toHex()) + u' '
                    + info.lastModified().toString(Qt::ISODateWithMs);
        }
        lines.append(line);
    }
    lines.sort();
    return lines.join(QLatin1Char('\n'));
}
