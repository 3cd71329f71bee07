#include "settings/themearchive.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "base/diagnostics.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <memory>

#include <archive.h>
#include <archive_entry.h>

namespace {

constexpr int mostFiles = 2000;
constexpr qint64 mostBytes = 256 * 1024 * 1024;

using ReaderPtr = std::unique_ptr<archive, Release<archive_read_free>>;
using WriterPtr = std::unique_ptr<archive, Release<archive_write_free>>;
using EntryPtr = std::unique_ptr<archive_entry, Release<archive_entry_free>>;

QString reasonOf(archive *handle)
{
    return QString::fromLocal8Bit(archive_error_string(handle));
}

/// Writes a file of at most \a left bytes, which its size is taken from.
bool writeFile(archive *writer, const ArchiveFile &file, qint64 *left, QString *error)
{
    const FileContent content = readRegularFile(file.path, *left);
    if (content.state != FileState::Regular)
        return failed(error, QStringLiteral("%1: %2").arg(file.path, content.error));
    *left -= content.content.size();
    const EntryPtr entry(archive_entry_new());
    archive_entry_set_pathname_utf8(entry.get(), file.name.toUtf8().constData());
    archive_entry_set_size(entry.get(), content.content.size());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), 0644);
    archive_entry_set_mtime(entry.get(), QFileInfo(file.path).lastModified().toSecsSinceEpoch(), 0);
    const bool written = archive_write_header(writer, entry.get()) == ARCHIVE_OK
                         && archive_write_data(writer, content.content.constData(),
                                               std::size_t(content.content.size()))
                                == content.content.size();
    return written || failed(error, reasonOf(writer));
}

/// An archive opened for reading with gzip, as a tar or as the bytes that the gzip holds. One that can't be opened has no
/// header to be read.
ReaderPtr openArchive(const QString &path, int (*supportFormat)(archive *))
{
    ReaderPtr reader(archive_read_new());
    archive_read_support_filter_gzip(reader.get());
    supportFormat(reader.get());
    archive_read_open_filename(reader.get(), QFile::encodeName(path).constData(), BUFSIZ);
    return reader;
}

/// Reads the bytes that \a reader has come to, of at most \a left, which they are taken from; into \a file if there is one.
bool readData(archive *reader, QFile *file, qint64 *left, QString *error)
{
    char block[BUFSIZ];
    la_ssize_t got{};
    while ((got = archive_read_data(reader, block, sizeof block)) > 0) {
        *left -= got;
        if (*left < 0)
            return failed(error, QStringLiteral("it unpacks to more than 256 MB"));
        if (file && file->write(block, got) != got)
            return failed(error, file->errorString());
    }
    return got == 0 || failed(error, reasonOf(reader));
}

/// Whether the file is a gzip that is complete and of a bearable size. The tar in it has its end before the gzip does:
/// who reads the tar alone misses what is cut off there.
bool isWholeGzip(const QString &path, QString *error)
{
    const ReaderPtr reader = openArchive(path, archive_read_support_format_raw);
    archive_entry *entry = nullptr;
    if (archive_read_next_header(reader.get(), &entry) != ARCHIVE_OK)
        return failed(error, reasonOf(reader.get()));
    if (archive_filter_code(reader.get(), 0) != ARCHIVE_FILTER_GZIP)
        return failed(error, QStringLiteral("it is no tar with gzip"));
    // The headers and the fill of the tar's blocks come on top of the files.
    qint64 left = mostBytes + mostFiles * 2048;
    return readData(reader.get(), nullptr, &left, error);
}

/// The name of \a entry without "./" in front; empty for one that is not to be trusted.
QString trustedName(archive_entry *entry, const QStringList &directories)
{
    QString name = QString::fromUtf8(archive_entry_pathname_utf8(entry));
    while (name.startsWith(QLatin1String("./")))
        name.remove(0, 2);
    const QString fileName = name.section(QLatin1Char('/'), -1);
    const QString directory = name.chopped(fileName.size());
    const bool isPlain = !fileName.isEmpty() && !fileName.startsWith(QLatin1Char('.'))
                         && std::none_of(fileName.begin(), fileName.end(), [](QChar character) {
                                return character.category() == QChar::Other_Control;
                            });
    const bool isPlaced = directory.isEmpty() || directories.contains(directory.chopped(1));
    return isPlain && isPlaced ? name : QString();
}

bool isKnownDirectory(archive_entry *entry, const QStringList &directories)
{
    const QString name = QDir::cleanPath(QString::fromUtf8(archive_entry_pathname_utf8(entry)));
    return archive_entry_filetype(entry) == AE_IFDIR
           && (name == QLatin1String(".") || directories.contains(name));
}

/// Unpacks the entry's bytes to the new file \a path.
bool unpackTo(const QString &path, archive *reader, qint64 *left, QString *error)
{
    QFile file(path);
    // Only new: a name that stands twice, or differs in what this file system takes for equal, is refused.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return failed(error, QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), file.errorString()));
    return readData(reader, &file, left, error);
}

} // namespace

bool writeArchive(const QString &path, const QVector<ArchiveFile> &files, QString *error)
{
    const WriterPtr writer(archive_write_new());
    archive_write_add_filter_gzip(writer.get());
    archive_write_set_format_pax_restricted(writer.get());
    if (archive_write_open_filename(writer.get(), QFile::encodeName(path).constData()) != ARCHIVE_OK)
        return failed(error, reasonOf(writer.get()));
    qint64 left = mostBytes;
    for (const ArchiveFile &file : files) {
        if (!writeFile(writer.get(), file, &left, error))
            return false;
    }
    return archive_write_close(writer.get()) == ARCHIVE_OK || failed(error, reasonOf(writer.get()));
}

bool readArchive(const QString &path, const QString &directory, const QStringList &directories,
                 QVector<ArchiveFile> *files, QString *error)
{
    if (!isWholeGzip(path, error))
        return false;
    for (const QString &name : directories)
        QDir(directory).mkdir(name);
    const ReaderPtr reader = openArchive(path, archive_read_support_format_tar);
    qint64 left = mostBytes;
    archive_entry *entry = nullptr;
    int entries = 0;
    int status = ARCHIVE_OK;
    while ((status = archive_read_next_header(reader.get(), &entry)) >= ARCHIVE_WARN
           && status != ARCHIVE_EOF) {
        if (++entries > mostFiles)
            return failed(error, QStringLiteral("it has more than 2,000 files"));
        if (isKnownDirectory(entry, directories))
            continue;
        const QString name = trustedName(entry, directories);
        if (name.isEmpty() || archive_entry_filetype(entry) != AE_IFREG || archive_entry_hardlink(entry))
            return failed(error, QStringLiteral("'%1' does not belong in it")
                                     .arg(QString::fromUtf8(archive_entry_pathname_utf8(entry))));
        files->append({name, directory + QLatin1Char('/') + name});
        if (!unpackTo(files->constLast().path, reader.get(), &left, error))
            return false;
    }
    return status == ARCHIVE_EOF || failed(error, reasonOf(reader.get()));
}
