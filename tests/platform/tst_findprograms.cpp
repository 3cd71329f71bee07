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

    void runningProcessIsFoundByName_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("found");
        const QString file = unique(QStringLiteral("qaz-test-manager"));
        const QString alias = unique(QStringLiteral("qaz-test-alias"));
        const QString wait = QStringLiteral("3600");
        const auto row = [&](const char *title, const QString &argument0, const QString &name, bool found) {
            QTest::newRow(title) << file << QStringList{argument0, wait} << name << found;
        };
        row("its executable", QStringLiteral("something else"), file, true);
        row("its argv[0]", QStringLiteral("/opt/x/") + alias, alias, true);
        row("only the end of its name", file, file.mid(4), false);
        row("the fifteen characters the kernel keeps", file, file.left(15), false);
        row("a directory of its path", QLatin1Char('/') + alias + QLatin1String("/x"), alias, false);
        row("an empty name", QString(), QString(), false);
        row("its argument", file, wait, false);
        QTest::newRow("a name with blanks and brackets")
            << unique(QStringLiteral("qaz) Z (test")) << QStringList{file, wait}
            << unique(QStringLiteral("qaz) Z (test")) << true;
    }
    void runningProcessIsFoundByName()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, arguments);
        QFETCH(QString, name);
        QFETCH(bool, found);
        const TemporaryHome home;
        const QString program = installWaitingProgram(home.path(file));
        QVERIFY(!isRunning(name));
        const SpawnedProcess process(program, arguments);
        QCOMPARE(isRunning(name), found);
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
