#include "settings/treecopy.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"

#include <QFile>

#include <cerrno>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

bool copyFile(const fs::path &from, const fs::path &to, QString *error)
{
    const FileContent file = readRegularFile(QFile::decodeName(from.c_str()));
    if (file.state != FileState::Regular)
        return failed(error, file.error.isEmpty() ? systemErrorText(ENOENT) : file.error);
    if (!replaceFile(QFile::decodeName(to.c_str()), file.content, error, 0600))
        return false;
    std::error_code ignored;
    fs::last_write_time(to, fs::last_write_time(from, ignored), ignored);
    return true;
}

/// Copies what stands at \a from, without what a directory holds.
bool copyEntry(const fs::path &from, const fs::path &to, QString *error)
{
    std::error_code failure;
    const fs::file_type type = fs::symlink_status(from, failure).type();
    if (type == fs::file_type::regular)
        return copyFile(from, to, error);
    if (type == fs::file_type::symlink)
        fs::copy_symlink(from, to, failure);
    else if (type == fs::file_type::directory && !makeDirectories(QFile::decodeName(to.c_str())))
        failure = {errno, std::system_category()};
    return !failure || failed(error, systemErrorText(failure.value()));
}

} // namespace

bool copyTree(const QString &from, const QString &to, QString *error)
{
    const fs::path source = QFile::encodeName(from).constData();
    const fs::path target = QFile::encodeName(to).constData();
    std::error_code failure;
    const fs::file_status status = fs::symlink_status(source, failure);
    if (fs::is_other(status))
        return failed(error, QStringLiteral("Not a regular file"));
    if (!copyEntry(source, target, error))
        return false;
    fs::recursive_directory_iterator entry;
    if (fs::is_directory(status))
        entry = fs::recursive_directory_iterator(source, failure);
    for (; !failure && entry != fs::recursive_directory_iterator(); entry.increment(failure)) {
        if (!copyEntry(entry->path(), target / entry->path().lexically_relative(source), error))
            return false;
    }
    return !failure || failed(error, systemErrorText(failure.value()));
}
