#include "settings/treecopy.h"

#include "base/atomicfile.h"
#include "base/xdgdirectories.h"

#include <QFile>

#include <filesystem>

namespace fs = std::filesystem;

namespace {

fs::path toPath(const QString &path)
{
    return fs::path(QFile::encodeName(path).toStdString());
}

QString fromPath(const fs::path &path)
{
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

/// Copies what stands at \a from, without what a directory holds.
bool copyEntry(const fs::path &from, const fs::path &to, QString *error)
{
    std::error_code failure;
    switch (fs::symlink_status(from, failure).type()) {
    case fs::file_type::regular:
        return copyFile(fromPath(from), fromPath(to), error);
    case fs::file_type::directory:
        if (!makeDirectories(fromPath(to)))
            failure = {errno, std::system_category()};
        break;
    case fs::file_type::symlink:
        fs::copy_symlink(from, to, failure);
        break;
    default:
        break;
    }
    if (failure)
        *error = QString::fromLocal8Bit(failure.message().c_str());
    return !failure;
}

} // namespace

bool copyFile(const QString &from, const QString &to, QString *error)
{
    const FileContent file = readRegularFile(from);
    *error = file.state == FileState::Missing ? QStringLiteral("No such file") : file.error;
    if (file.state != FileState::Regular || !replaceFile(to, file.content, error, 0600))
        return false;
    std::error_code ignored;
    fs::last_write_time(toPath(to), fs::last_write_time(toPath(from), ignored), ignored);
    return true;
}

bool copyTree(const QString &from, const QString &to, QString *error)
{
    const fs::path source = toPath(from);
    std::error_code failure;
    if (fs::is_other(fs::symlink_status(source, failure))) {
        *error = QStringLiteral("Not a regular file");
        return false;
    }
    bool copied = copyEntry(source, toPath(to), error);
    if (!copied || !fs::is_directory(fs::symlink_status(source, failure)))
        return copied;
    fs::recursive_directory_iterator entry(source, failure);
    for (; !failure && copied && entry != fs::recursive_directory_iterator(); entry.increment(failure))
        copied = copyEntry(entry->path(), toPath(to) / entry->path().lexically_relative(source), error);
    if (failure)
        *error = QString::fromLocal8Bit(failure.message().c_str());
    return copied && !failure;
}
