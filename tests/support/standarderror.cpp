#include "tests/support/standarderror.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

StandardError::StandardError()
    : m_before(::dup(STDERR_FILENO))
{
    if (!m_file.open() || ::dup2(m_file.handle(), STDERR_FILENO) < 0)
        qFatal("Can't catch standard error");
}

StandardError::~StandardError()
{
    std::fflush(stderr);
    ::dup2(m_before, STDERR_FILENO);
    ::close(m_before);
}

QByteArray StandardError::take()
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
