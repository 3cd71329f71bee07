#include "base/editfile.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/filelock.h"
#include "base/xdgdirectories.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

bool editFile(const QString &path, const FileEdit &edit, QString *error, const EditFileOptions &options)
{
    const QString target = linkTarget(path);
    const auto failed = [error](const QString &reason) {
        *error = reason;
        return false;
    };
    if (target.isEmpty())
        return failed(systemErrorText(ELOOP));
    const QString directory = QFileInfo(target).path();
    if (!makeDirectories(directory))
        return failed(QStringLiteral("Can't create directory %1").arg(directory));
    const FileLock lock(target);
    if (!lock.isHeld())
        return failed(lock.error());
    const FileContent file = readRegularFile(target, options.limit);
    if (file.state == FileState::Unreadable)
        return failed(file.error);
    const std::optional<QByteArray> content = edit(file.content);
    if (!content)
        return false;
    if (*content == file.content)
        return true;
    if (options.beforeReplace && file.state == FileState::Regular)
        options.beforeReplace(path);
    if (content->isEmpty() && options.removeWhenEmpty)
        return QFile::remove(target) || failed(systemErrorText(errno));
    return replaceFile(target, *content, error, options.newFileMode);
}
