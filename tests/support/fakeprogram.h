#pragma once

#include "tests/support/environment.h"

#include <cerrno>

#include <sys/wait.h>

/// A directory of fake programs at the front of PATH (or instead of it) until the end of the scope. Each
/// call of a fake program is recorded with its arguments.
class FakePrograms
{
public:
    enum class Path { InFront, Instead };

    explicit FakePrograms(Path path = Path::InFront)
        : m_path("PATH", QFile::encodeName(directory())
                             + (path == Path::Instead ? QByteArray() : ':' + qgetenv("PATH")))
    {}

    /// Installs a program that records its call, then runs \a script (POSIX shell; the arguments are "$@").
    void add(const QString &name, const QByteArray &script = {})
    {
        QFile file(directory() + u'/' + name);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("Can't write %s", qPrintable(file.fileName()));
        // One record a call: each argument ended by a unit separator, the record by a record separator.
        file.write("#!/bin/sh\n{ [ $# -eq 0 ] || printf '%s\\037' \"$@\"; printf '\\036'; } >>'"
                   + QFile::encodeName(file.fileName()) + ".calls'\n" + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    /// The recorded argument lists of \a name, in order of the calls.
    QVector<QStringList> calls(const QString &name) const
    {
        QVector<QStringList> result;
        QFile file(directory() + u'/' + name + QLatin1String(".calls"));
        if (!file.open(QIODevice::ReadOnly))
            return result;
        QStringList records = QString::fromLocal8Bit(file.readAll()).split(QChar(0x1e));
        records.removeLast();
        for (const QString &record : qAsConst(records))
            result.append(record.split(QChar(0x1f)).mid(0, record.count(QChar(0x1f))));
        return result;
    }
    QString directory() const { return m_directory.path(); }

private:
    QTemporaryDir m_directory;
    ScopedEnvironment m_path;
};

/// Whether this process has a child, running or not yet reaped.
inline bool hasChildProcesses()
{
    siginfo_t info;
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}
