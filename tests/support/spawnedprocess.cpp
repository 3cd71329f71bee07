#include "tests/support/spawnedprocess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

SpawnedProcess::SpawnedProcess(const QString &program, const QStringList &arguments)
{
    std::vector<QByteArray> texts;
    texts.reserve(std::size_t(arguments.size()));
    for (const QString &argument : arguments)
        texts.push_back(QFile::encodeName(argument));
    std::vector<char *> argv;
    argv.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);
    const QByteArray path = QFile::encodeName(program);
    if (posix_spawn(&m_pid, path.constData(), nullptr, nullptr, argv.data(), environ) != 0)
        qFatal("Can't start %s", qPrintable(program));
}

SpawnedProcess::~SpawnedProcess()
{
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
}

void SpawnedProcess::makeZombie()
{
    siginfo_t info = {};
    ::kill(m_pid, SIGKILL);
    ::waitid(P_PID, id_t(m_pid), &info, WEXITED | WNOWAIT);
}

QString installWaitingProgram(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    if (!QFile::copy(QStringLiteral("/bin/sleep"), path))
        qFatal("Can't write %s", qPrintable(path));
    return path;
}
