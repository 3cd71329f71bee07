// The real program in processes of its own: start, single instance, files.

#include "tests/support/fakeprogram.h"
#include "tests/support/privateserver.h"
#include "tests/tools/toolrun.h"

#include <QLocalServer>
#include <QLocalSocket>

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_home.emplace(); }

    void sessionsGoAsWritten() { replay("app/program.txt"_s); }

    void theBusOfScreenReadersIsLookedFor()
    {
        const ScopedEnvironment bus("DBUS_SESSION_BUS_ADDRESS", QByteArray());
        {
            QLocalServer server;
            QVERIFY(server.listen(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"_s));
            EditorProcess editor;
            QVERIFY2(server.waitForNewConnection(30000), "one that runs is asked");
            delete server.nextPendingConnection();
        }
        FakePrograms programs;
        programs.add("dbus-launch"_s, "echo \"$1\" >\"$HOME/launched\"");
        EditorProcess editor;
        QTRY_COMPARE(m_home->read("launched"_s), "--autolaunch\n");
    }

    void aSecondStartFindsTheFirst()
    {
        EditorProcess first;
        QVERIFY(first.waitForWindow());
        const QByteArray id = qgetenv("DISPLAY") + "qaz-admin-theme";
        const QByteArray digest = QCryptographicHash::hash(id, QCryptographicHash::Sha1).toHex().left(12);
        const QString files = "*"_s + QString::fromLatin1(digest) + "*"_s;
        QVERIFY(!QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).entryList({files}, QDir::Files).isEmpty());
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        EditorProcess second({"--help"_s});
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(second.process().readAllStandardOutput(), QByteArray());
        QTRY_VERIFY2(!other.isActiveWindow(), "the first has taken the focus");
        const PrivateServer server;
        EditorProcess elsewhere;
        QVERIFY2(elsewhere.waitForWindow(), "another display has an instance of its own");
        QCOMPARE(first.process().state(), QProcess::Running);
    }

    void ofManyStartsOneRuns()
    {
        EditorProcess editors[30];
        const auto isRunning = [](EditorProcess &editor) {
            editor.process().waitForFinished(0);
            return editor.process().state() != QProcess::NotRunning;
        };
        QTRY_COMPARE_WITH_TIMEOUT(std::count_if(std::begin(editors), std::end(editors), isRunning), 1,
                                  120000);
        for (EditorProcess &editor : editors)
            QVERIFY(isRunning(editor) ? editor.waitForWindow() : editor.exitCode() == 0);
    }

    void whateverStandsInPlaceOfTheLockBlocksNothing()
    {
        const QTemporaryDir own;
        const ScopedEnvironment directory("XDG_RUNTIME_DIR", QFile::encodeName(own.path()));
        const QString precious = m_home->write("precious"_s, "mine");
        const std::function<bool(const QString &)> rows[] = {
            nullptr, // what the killed one left
            [&](const QString &path) { return QFile::copy(precious, path); },
            [&](const QString &path) { return QFile::link(precious, path); },
            [](const QString &path) { return QFile::link("/nowhere/at/all"_s, path); },
            [&](const QString &path) { return !m_home->makeFifo(path).isEmpty(); },
            [](const QString &path) { return QDir().mkpath(path + "/full"_s); }};
        for (const auto &place : rows) {
            QFileInfoList files;
            {
                EditorProcess killed;
                QVERIFY2(killed.waitForWindow(), qPrintable(killed.errors()));
                EditorProcess second;
                QCOMPARE(second.exitCode(), 0);
                files = QDir(own.path())
                            .entryInfoList({"qtsingleapp-*[0-9k]"_s}, QDir::AllEntries | QDir::System);
            }
            QCOMPARE(files.size(), 2); // the socket and the lock
            for (const QFileInfo &file : qAsConst(files)) {
                QCOMPARE(int(file.permissions()) & 0x77, 0);
                QVERIFY(!place || (QFile::remove(file.filePath()) && place(file.filePath())));
            }
        }
        EditorProcess last;
        QVERIFY(last.waitForWindow());
        QCOMPARE(m_home->read("precious"_s), QByteArray("mine"));
    }

    void withoutXItEditsAllTheSame()
    {
        const ScopedEnvironment platform("QT_QPA_PLATFORM", "offscreen");
        EditorProcess editor;
        QTRY_VERIFY_WITH_TIMEOUT(m_home->exists(".config/qaz"_s), 60000);
        // A second start finds it only when its event loop runs.
        EditorProcess second;
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(editor.process().state(), QProcess::Running);
        editor.process().terminate();
        QCOMPARE(editor.exitCode(), 0);
    }

private:
    std::optional<TemporaryHome> m_home;
};

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
