#pragma once

#include <QString>
#include <QStringList>

#include <sys/types.h>

/// A child process with a command line of the test's choice, killed and reaped at the end of the scope. It runs
/// its program as soon as the constructor returns.
class SpawnedProcess
{
public:
    /// Runs \a program; \a arguments start with argv[0], which need not be the program's name.
    SpawnedProcess(const QString &program, const QStringList &arguments);
    ~SpawnedProcess();
    SpawnedProcess(const SpawnedProcess &) = delete;
    SpawnedProcess &operator=(const SpawnedProcess &) = delete;

    /// Ends the process but does not reap it.
    void makeZombie();

private:
    pid_t m_pid = -1;
};

/// A copy of a program that only waits, at \a path; runs for an hour with the argument "3600".
QString installWaitingProgram(const QString &path);
