#pragma once

#include "tests/support/testing.h"

#include <unistd.h>

/// Catches what this process writes to standard error, from its construction to the end of the scope.
class StandardError
{
public:
    StandardError()
        : m_before(::dup(STDERR_FILENO))
    {
        if (!m_file.open() || ::dup2(m_file.handle(), STDERR_FILENO) < 0)
            qFatal("Can't catch standard error");
    }
    ~StandardError()
    {
        std::fflush(stderr);
        ::dup2(m_before, STDERR_FILENO);
        ::close(m_before);
    }
    Q_DISABLE_COPY(StandardError)

    /// What was written since the last call.
    QByteArray take()
    {
        std::fflush(stderr);
        // The descriptors share one offset, so the file is read through another one.
        QFile reader(m_file.fileName());
        if (!reader.open(QIODevice::ReadOnly) || !reader.seek(m_taken))
            return {};
        QByteArray text = reader.readAll();
        m_taken += text.size();
        return text;
    }

private:
    QTemporaryFile m_file;
    qint64 m_taken = 0;
    int m_before;
};
