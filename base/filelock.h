#pragma once

#include "base/descriptor.h"

#include <QString>

/// The lock under which programs of this user read, change and replace the files of a directory in turn. It
/// ends with the process. Nobody else can hold it: it is a file of mode 0600 in a directory of the user's own,
/// named after the directory to be changed. A process that asks for a lock that it holds waits in vain.
class FileLock
{
public:
    /// Waits at most 2 s for the lock on the directory of the file that \a path leads to.
    explicit FileLock(const QString &path);

    /// False when the directory is missing or another program kept the lock too long; see error().
    bool isHeld() const { return m_error.isNull(); }
    /// Null while the lock is held.
    QString error() const { return m_error; }

private:
    Descriptor m_file;
    QString m_error;
};
