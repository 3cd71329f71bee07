#include "platform/findfileinpath.h"
#include "platform/findinps.h"
#include "tests/support/environment.h"
#include "tests/support/spawnedprocess.h"
#include "tests/support/temporaryhome.h"

#include <QFile>
#include <QtTest>

#include <climits>
#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString inPath(const QString &name)
{
    char buffer[PATH_MAX] = "untouched";
    const bool found = FindFileInPATH(QFile::encodeName(name).constData(), buffer);
    return found == (buffer[0] != '\0') ? QFile::decodeName(buffer) : QStringLiteral("contradiction");
}

bool isRunning(const QString &name)
{
    return findInPS(QFile::encodeName(name).constData());
}

/// A name that no other run of this test on the same machine has.
QString unique(const QString &name)
{
    return QStringLiteral("%1-%2").arg(name).arg(::getpid());
}

} // namespace

class TestFindPrograms : public QObject
{
    Q_OBJECT
private slots:
    void firstExecutableFileInPathIsFound()
    {
        const TemporaryHome home;
        home.write(QStringLiteral("a/manager"), "not executable");
        home.makeDirectory(QStringLiteral("b/manager"));
        const QString program = installWaitingProgram(home.path(QStringLiteral("c d/manager")));
        installWaitingProgram(home.path(QStringLiteral("e/manager")));
        const QString path = home.path(QStringLiteral("a:")) + home.path(QStringLiteral("b:"))
                             + home.path(QStringLiteral("c d:")) + home.path(QStringLiteral("e"));
        const ScopedEnvironment search("PATH", QFile::encodeName(path));
        QCOMPARE(inPath(QStringLiteral("manager")), program);
        QCOMPARE(inPath(QStringLiteral("anager")), QString());
        QCOMPARE(inPath(QString()), QString());
        // A name with a slash stands for itself, wherever PATH leads.
        QCOMPARE(inPath(program), program);
        QCOMPARE(inPath(home.path(QStringLiteral("a/manager"))), QString());
        QCOMPARE(inPath(home.path(QStringLiteral("b/manager"))), QString());
        QCOMPARE(inPath(QLatin1Char('/') + QString(2 * PATH_MAX, QLatin1Char('x'))), QString());
    }

    void runningProcessIsFoundByName()
    {
        struct Case {
            QString argument0;
            QString name;
            bool found;
        };
        // Longer than the fifteen characters that the kernel keeps, and made to mislead a reader of its tables.
        const QString file = unique(QStringLiteral("qaz) Z (test-manager"));
        const QString alias = unique(QStringLiteral("qaz-test-alias"));
        const QString wait = QStringLiteral("3600");
        const Case cases[] = {{QStringLiteral("something else"), file, true},
                              {QStringLiteral("/opt/x/") + alias, alias, true},
                              {file, file.mid(4), false},
                              {file, file.left(15), false},
                              {QLatin1Char('/') + alias + QLatin1String("/x"), alias, false},
                              {{}, {}, false},
                              {file, wait, false}};
        const TemporaryHome home;
        const QString program = installWaitingProgram(home.path(file));
        for (const Case &one : cases) {
            QVERIFY(!isRunning(one.name));
            const SpawnedProcess process(program, {one.argument0, wait});
            QVERIFY2(isRunning(one.name) == one.found,
                     qPrintable(one.argument0 + QLatin1Char(' ') + one.name));
        }
    }

    void replacedProgramRunsOnAndZombieDoesNot()
    {
        const TemporaryHome home;
        const QString name = unique(QStringLiteral("qaz-test-upgraded"));
        const QString program = installWaitingProgram(home.path(name));
        SpawnedProcess process(program, {QStringLiteral("x"), QStringLiteral("3600")});
        QVERIFY(QFile::remove(program));
        QVERIFY(isRunning(name));
        process.makeZombie();
        QVERIFY(!isRunning(name));
    }

    void vanishingProcessesDisturbNothing()
    {
        const TemporaryHome home;
        const QString name = unique(QStringLiteral("qaz-test-steady"));
        const QString program = installWaitingProgram(home.path(name));
        const SpawnedProcess steady(program, {program, QStringLiteral("3600")});
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
    }
};

QTEST_GUILESS_MAIN(TestFindPrograms)
#include "tst_findprograms.moc"
