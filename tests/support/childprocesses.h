#pragma once

#include <cerrno>

#include <sys/wait.h>

/// Whether this process has a child, running or not yet reaped.
inline bool hasChildProcesses()
{
    siginfo_t info;
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}
