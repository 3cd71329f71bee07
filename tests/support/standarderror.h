#pragma once

#include <QByteArray>
#include <QTemporaryFile>

/// Catches what this process writes to standard error, from its construction to the end of the scope.
class StandardError
{
public:
    StandardError();
    ~StandardError();
    StandardError(const StandardError &) = delete;
    StandardError &operator=(const StandardError &) = delete;

    /// What was written since the last call.
    QByteArray take();

private:
    QTemporaryFile m_file;
    qint64 m_taken = 0;
    int m_before;
};
