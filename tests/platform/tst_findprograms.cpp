#include "platform/findfileinpath.h"
#include "platform/findinps.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <csignal>

#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A copy of a program that only waits, at \a path; runs for an hour with the argument "3600".
QString installWaitingProgram(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    if (!QFile::copy("/bin/sleep"_s, path))
        qFatal("Can't write %s", qPrintable(path));
    return path;
}

/// A child with a command line of the test's choice, killed and reaped at the end of the scope. It runs its program as
/// soon as the constructor returns.
class SpawnedProcess
{
public:
    /// Runs a waiting \a program with \a argument0 in the place of its name.
    SpawnedProcess(const QString &program, const QString &argument0)
    {
        QByteArray arguments[] = {QFile::encodeName(argument0), "3600"};
        char *argv[] = {arguments[0].data(), arguments[1].data(), nullptr};
        if (posix_spawn(&m_pid, QFile::encodeName(program).constData(), nullptr, nullptr, argv, environ) != 0)
            qFatal("Can't start %s", qPrintable(program));
    }
    ~SpawnedProcess()
    {
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
    }
    SpawnedProcess(const SpawnedProcess &) = delete;
    SpawnedProcess &operator=(const SpawnedProcess &) = delete;

    /// Ends the process but does not reap it.
    void makeZombie()
    {
        siginfo_t info = {};
        ::kill(m_pid, SIGKILL);
        ::waitid(P_PID, id_t(m_pid), &info, WEXITED | WNOWAIT);
    }

private:
    pid_t m_pid = -1;
};

QString inPath(const QString &name)
{
    char buffer[PATH_MAX] = "untouched";
    const bool found = FindFileInPATH(QFile::encodeName(name).constData(), buffer);
    return found == (buffer[0] != '\0') ? QFile::decodeName(buffer) : "contradiction"_s;
}

bool isRunning(const QString &name)
{
    return findInPS(QFile::encodeName(name).constData());
}

/// A name that no other run of this test on the same machine has.
QString unique(const QString &name)
{
    return "%1-%2"_s.arg(name).arg(::getpid());
}

} // namespace

class TestFindPrograms : public QObject
{
    Q_OBJECT
private slots:
    void firstExecutableFileInPathIsFound()
    {
        const TemporaryHome home;
        home.write("a/manager"_s, "not executable");
        home.makeDirectory("b/manager"_s);
        installWaitingProgram(home.path("e/manager"_s));
        const QString program = installWaitingProgram(home.path("c d/manager"_s));
        const ScopedEnvironment search("PATH", QFile::encodeName("%1/a:%1/b:%1/c d:%1/e"_s.arg(home.path())));
        // A name with a slash stands for itself, wherever PATH leads.
        for (const QString &name : {"manager"_s, program})
            QCOMPARE(inPath(name), program);
        for (const QString &name : {QString(), "anager"_s, home.path("a/manager"_s), home.path("b/manager"_s),
                                    u'/' + QString(2 * PATH_MAX, u'x')})
            QCOMPARE(inPath(name), QString());
    }

    void runningProcessIsFoundByName()
    {
        // Longer than the fifteen characters that the kernel keeps, and made to mislead a reader of its tables.
        const QString file = unique("qaz) Z (test-manager"_s);
        const QString alias = unique("qaz-test-alias"_s);
        // argv[0], a name, and whether it is found.
        const std::tuple<QString, QString, bool> cases[] = {{"something else"_s, file, true},
                                                            {"/opt/x/"_s + alias, alias, true},
                                                            {file, file.mid(4), false},
                                                            {file, file.left(15), false},
                                                            {u'/' + alias + "/x"_s, alias, false},
                                                            {{}, {}, false},
                                                            {file, "3600"_s, false}};
        const TemporaryHome home;
        const QString program = installWaitingProgram(home.path(file));
        for (const auto &[argument0, name, found] : cases) {
            QVERIFY(!isRunning(name));
            const SpawnedProcess process(program, argument0);
            QVERIFY2(isRunning(name) == found, qPrintable(argument0 + u' ' + name));
        }
    }

    void removedProgramIsFoundAmongVanishingProcesses()
    {
        const TemporaryHome home;
        const QString name = unique("qaz-test-steady"_s);
        const QString program = installWaitingProgram(home.path(name));
        SpawnedProcess steady(program, "x"_s);
        QVERIFY(QFile::remove(program));
        const pid_t spawner = ::fork();
        if (spawner == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL); // also when the test itself fails
            ::signal(SIGCHLD, SIG_IGN);         // children go without becoming zombies
            for (;;) {
                if (::fork() == 0)
                    ::_exit(0);
            }
        }
        int seen = 0;
        for (int i = 0; i < 100; ++i)
            seen += isRunning(name) && !isRunning(unique(name)) ? 1 : 0;
        ::kill(spawner, SIGKILL);
        ::waitpid(spawner, nullptr, 0);
        QCOMPARE(seen, 100);
        steady.makeZombie();
        QVERIFY(!isRunning(name));
    }
};

QTEST_GUILESS_MAIN(TestFindPrograms)
#include "tst_findprograms.moc"
