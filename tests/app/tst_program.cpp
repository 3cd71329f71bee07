// The real program in processes of its own: start, single instance, files.

#include "tests/support/fakeprogram.h"
#include "tests/support/privateserver.h"
#include "tests/support/programprocess.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QLocalServer>
#include <QLocalSocket>

#include <functional>
#include <optional>

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_home.emplace(); }

    void theArgumentNamesTheThemeFile()
    {
        m_home->write("mine"_s, "");
        m_home->write("[*] ö.rc"_s, "");
        m_home->makeDirectory("directory"_s);
        const QString before = QDir::currentPath();
        QStringList files;
        for (const char *arguments :
             {"", "[*] ö.rc", "-style|fusion|mine", "missing", "directory", "mine|mine", "mine|--help"}) {
            QDir::setCurrent(m_home->path());
            EditorProcess editor(QString::fromUtf8(arguments).split(u'|', Qt::SkipEmptyParts));
            QDir::setCurrent(before);
            QVERIFY2(editor.waitForWindow(), arguments);
            files.append(editor.title().remove("Qaz Theme Editor - "_s));
        }
        QCOMPARE(files.join(u'|'),
                 "current.themerc|[*] ö.rc|mine|current.themerc|current.themerc|current.themerc|"
                 "current.themerc"_s);
    }

    void childrenGetTheUsersEnvironment()
    {
        // Qt's X11 plugin is told not to load the GL stack and not to look for a bus, and nobody else.
        FakePrograms programs;
        programs.add("qaz-svg2png"_s,
                     "echo ${QT_XCB_GL_INTEGRATION-unset} ${DBUS_SESSION_BUS_ADDRESS-unset} >\"$HOME/seen\"");
        m_home->write(".local/share/wallpapers/drawn.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg'/>");
        const QString theme = m_home->write("t.themerc"_s, "WallPaper=drawn\n");
        for (const QByteArray &value : {QByteArray(), QByteArray("xcb_egl")}) {
            const ScopedEnvironment gl("QT_XCB_GL_INTEGRATION", value);
            const ScopedEnvironment bus("DBUS_SESSION_BUS_ADDRESS", value);
            EditorProcess editor({theme});
            QVERIFY(editor.waitForWindow());
            QCOMPARE(m_home->read("seen"_s), value.isNull() ? "unset unset\n" : "xcb_egl xcb_egl\n");
            const QByteArray loaded = m_home->read("/proc/%1/maps"_s.arg(editor.process().processId()));
            QVERIFY(loaded.contains("libqxcb"));
            QCOMPARE(loaded.contains("libEGL_") || loaded.contains("gl-integration"), !value.isNull());
        }
    }

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

    void theLocksDirectoryIsTheUsersAlone()
    {
        const QString shared = m_home->path("shared"_s);
        QVERIFY(QDir().mkdir(shared) && QFile(shared).setPermissions(QFile::Permissions(0x7777)));
        const ScopedEnvironment runtime("XDG_RUNTIME_DIR", QFile::encodeName(shared));
        EditorProcess editor;
        QVERIFY(editor.waitForWindow());
        const QString told = "qaz-admin-theme: %1/shared is not the user's alone; using %1/.cache/qaz\n"_s;
        QTRY_VERIFY2(editor.errors().contains(told.arg(m_home->path())), qPrintable(editor.errors()));
        EditorProcess second;
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(QDir(shared).isEmpty());
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

    void startHelpAndCloseWriteNothingElse()
    {
        const QString theme = m_home->write("t.themerc"_s, "# mine\nScreenSaverDelay=90\n");
        const QString before = m_home->fingerprint();
        EditorProcess editor({theme});
        QVERIFY(editor.waitForWindow());
        EditorProcess::press("F1");
        QVERIFY(editor.waitForWindow("Help"_s));
        QVERIFY(editor.waitForWindow());
        EditorProcess::press("Escape"); // the help window doesn't keep the program alive
        QCOMPARE(editor.exitCode(), 0);
        QVERIFY(QFile::remove(m_home->path(".config/qaz/qaz-admin-theme.conf"_s)));
        for (const QString &empty : {".config/qaz"_s, ".config/fontconfig"_s})
            QVERIFY(QDir(m_home->path()).rmpath(empty));
        QDir(m_home->path(".cache"_s)).removeRecursively(); // of the libraries
        QCOMPARE(m_home->fingerprint(), before);
    }

    void applyWritesAndAnnouncesOneValue()
    {
        const QByteArray text
            = "# mine\n\nunknown line\nScreenSaverDelay=600\n; more\n[Group]\nScreenSaverDelay=1\n";
        WmListener listener;
        EditorProcess editor({m_home->write("t.themerc"_s, text)});
        QVERIFY(editor.waitForWindow());
        // The Screensaver page by its first letter, and Tabs to its delay. Other pages are not visited, nor saved.
        EditorProcess::press("s Tab Tab ctrl+a 5");
        QTRY_COMPARE_WITH_TIMEOUT(editor.title(), "Qaz Theme Editor - t.themerc*"_s, 60000);
        // Backwards from the delay: its box, the page list, then around to the last buttons.
        EditorProcess::press("shift+Tab shift+Tab shift+Tab shift+Tab space");
        QTRY_COMPARE_WITH_TIMEOUT(editor.title(), "Qaz Theme Editor - t.themerc"_s, 60000);
        QCOMPARE(listener.takeUpdates(), "ScreenSaverDelay 300"_s);
        QCOMPARE(m_home->read("t.themerc"_s), QByteArray(text).replace("=600", "=300"));
    }

private:
    std::optional<TemporaryHome> m_home;
};

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
