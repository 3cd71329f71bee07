#include "platform/findfileinpath.h"
#include "platform/findinps.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <csignal>

#include <spawn.h>
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

/// A waiting \a program with \a argument0 in the place of its name, which it runs as soon as the constructor returns; killed
/// and reaped at the end of the scope.
struct SpawnedProcess {
    SpawnedProcess(const QString &program, QByteArray argument0)
    {
        QByteArray time = "3600";
        char *argv[] = {argument0.data(), time.data(), nullptr};
        if (posix_spawn(&id, QFile::encodeName(program).constData(), nullptr, nullptr, argv, environ) != 0)
            qFatal("Can't start %s", qPrintable(program));
    }
    ~SpawnedProcess()
    {
        ::kill(id, SIGKILL);
        ::waitpid(id, nullptr, 0);
    }
    Q_DISABLE_COPY(SpawnedProcess)

    pid_t id = -1;
};

QString inPath(const QString &name)
{
    char buffer[PATH_MAX] = "untouched";
    const bool found = FindFileInPATH(QFile::encodeName(name).constData(), buffer);
    return found == (buffer[0] != '\0') ? QFile::decodeName(buffer) : "contradiction"_s;
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
        for (const QString &name : {"manager"_s, program, QDir().relativeFilePath(program)})
            QCOMPARE(inPath(name), program);
        for (const QString &name : {QString(), "anager"_s, home.path("a/manager"_s), home.path("b/manager"_s),
                                    "../c d/manager"_s, u'/' + QString(2 * PATH_MAX, u'x')})
            QCOMPARE(inPath(name), QString());
    }

    void runningProcessIsFoundByName()
    {
        // Longer than the fifteen characters that the kernel keeps, and made to mislead a reader of its tables.
        const QByteArray file = "qaz) Z (test-manager-" + QByteArray::number(::getpid());
        const QByteArray alias = "qaz-test-alias-" + QByteArray::number(::getpid());
        // argv[0], a name, and whether it is found.
        const std::tuple<QByteArray, QByteArray, bool> cases[] = {
            {"something else", file, true}, {"/opt/x/" + alias, alias, true},   {file, file.mid(4), false},
            {file, file.left(15), false},   {'/' + alias + "/x", alias, false}, {{}, "", false},
            {file, "3600", false}};
        const TemporaryHome home;
        const QString program = installWaitingProgram(home.path(QFile::decodeName(file)));
        for (const auto &[argument0, name, found] : cases) {
            QVERIFY(!findInPS(name.constData()));
            const SpawnedProcess process(program, argument0);
            QVERIFY2(findInPS(name.constData()) == found, (argument0 + ' ' + name).constData());
        }
        const SpawnedProcess removed(program, "x");
        QVERIFY(QFile::remove(program));
        QVERIFY(findInPS(file.constData()));
        siginfo_t info = {};
        ::kill(removed.id, SIGKILL);
        ::waitid(P_PID, id_t(removed.id), &info, WEXITED | WNOWAIT);
        QVERIFY2(!findInPS(file.constData()), "a zombie");
    }
};

QTEST_GUILESS_MAIN(TestFindPrograms)
#include "tst_findprograms.moc"
