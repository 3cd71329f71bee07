#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

#include "tests/support/environment.h"

/// A directory of fake programs at the front of PATH (or instead of it) until the end of the scope. Each
/// call of a fake program is recorded with its arguments.
class FakePrograms
{
public:
    enum class Path { InFront, Instead };

    explicit FakePrograms(Path path = Path::InFront);

    /// Installs a program that records its call, then runs \a script (POSIX shell; the arguments are "$@").
    void add(const QString &name, const QByteArray &script = {});
    /// The recorded argument lists of \a name, in order of the calls.
    QVector<QStringList> calls(const QString &name) const;
    QString directory() const { return m_directory.path(); }

private:
    QTemporaryDir m_directory;
    ScopedEnvironment m_path;
};

/// Whether this process has a child, running or not yet reaped.
bool hasChildProcesses();
