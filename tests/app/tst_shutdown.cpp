// The real program in a process of its own, ended from outside: by a signal and by the loss of the X server.

#include "tests/support/fakeprogram.h"
#include "tests/support/privateserver.h"
#include "tests/support/programprocess.h"
#include "tests/support/temporaryhome.h"

#include <csignal>
#include <optional>

class TestShutdown : public QObject
{
    Q_OBJECT

    const QString ownSettings = ".config/qaz/qaz-admin-theme.conf"_s;

private slots:
    void init() { m_home.emplace(); }

    void aLostServerEndsItOrderly()
    {
        // Keys, and the title of the dialog that they bring up.
        const QString rows
            = "|Down|End|Down Down Down Tab Tab ctrl+a 5 Return|F1: Help|Tab Tab space: Select wallpaper|"
              "Tab Tab Tab space: Select Color|shift+Tab shift+Tab shift+Tab space: ^Restore$|"
              "s Tab Tab ctrl+a 5 Escape: Save \\?|f alt+j: Select Font|f alt+n e Tab space: Anti"_s;
        for (const QString &row : rows.split(u'|')) {
            const QByteArray keys = row.section(": "_s, 0, 0).toLatin1();
            const QString title = row.section(": "_s, 1);
            for (const bool closed : {false, true}) {
                if (closed && title.isEmpty())
                    continue;
                init();
                PrivateServer server;
                const QByteArray before = "ScreenSaverDelay=600\n";
                EditorProcess editor({m_home->write("t"_s, before)});
                QVERIFY2(editor.waitForWindow(), qPrintable(editor.errors()));
                EditorProcess::press(keys.constData());
                if (!title.isEmpty())
                    QVERIFY2(editor.waitForWindow(title), qPrintable(row));
                if (closed)
                    EditorProcess::press("Escape");
                server.end();
                const int status = editor.exitCode(); // 0 when an Apply and close was faster
                QVERIFY2(status == 1 || (status == 0 && keys.endsWith("Return")), qPrintable(row));
                const QByteArray size = m_home->read(ownSettings);
                QVERIFY2(size.contains("width=8") && size.contains("height="), qPrintable(row));
                const QByteArray after = m_home->read("t"_s);
                QVERIFY2(after == before || after.startsWith("ScreenSaverDelay=300\n"), after.constData());
            }
        }
    }

    void itEndsWhatItWaitsFor()
    {
        // The program, the keys that lead to it, and the title of a message box that is answered first.
        const std::tuple<QString, const char *, QString> rows[] = {
            {"xrdb"_s, "f alt+n e Tab Tab ctrl+a 1 2 0 Return", "Font Settings Changed"_s},
            {"qaz-svg2png"_s, "Tab ctrl+a d r a w n Tab", QString()},
            {"qaz-su"_s, "End Tab o", "Attention"_s}};
        for (const auto &[program, keys, title] : rows) {
            init();
            FakePrograms programs;
            // Its own child may be ended a moment before it.
            programs.add(program, "trap : TERM\nsleep 3600 &\necho begun >\"$HOME/child\"\nwait\n"
                                  "echo ended >>\"$HOME/child\"");
            m_home->write(".local/share/wallpapers/drawn.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg'/>");
            m_home->write(".local/share/sounds/oga/index.theme"_s,
                          "[Sound Theme]\nName=oga\nDirectories=.\n");
            m_home->write(".local/share/sounds/oga/menu-popup.oga"_s, "OggS");
            PrivateServer server;
            EditorProcess editor({m_home->write("t"_s, "EnableSound=true\n")});
            QVERIFY2(editor.waitForWindow(), qPrintable(editor.errors()));
            EditorProcess::press(keys);
            if (!title.isEmpty()) {
                QVERIFY2(editor.waitForWindow(title), qPrintable(program));
                EditorProcess::press("Return");
            }
            QTRY_COMPARE_WITH_TIMEOUT(m_home->read("child"_s), QByteArray("begun\n"), 60000);
            server.end();
            QCOMPARE(editor.exitCode(), 1);
            QTRY_COMPARE(m_home->read("child"_s), QByteArray("begun\nended\n"));
            QVERIFY2(m_home->read(ownSettings).contains("width"), qPrintable(program));
        }
    }

    void aHangingPlayerIsEnded()
    {
        const QByteArray device = QFile::encodeName(
            m_home->makeFifo("device"_s)); // nobody ever reads from it
        m_home->write(".asoundrc"_s,
                      "pcm.!default { type file slave.pcm null file \"" + device + "\" format raw }");
        PrivateServer server;
        EditorProcess editor({m_home->write("t"_s, "EnableSound=true\nMenuPopupSound=" QAZ_SOURCE_DIR
                                                   "/data/sounds/x-qaz-wm-error.wav\n")});
        QVERIFY2(editor.waitForWindow(), qPrintable(editor.errors()));
        EditorProcess::press("End Tab Tab Tab Tab Tab Home Tab Tab Tab space");
        const QString children = "/proc/%1/task/%1/children"_s.arg(editor.process().processId());
        pid_t player = 0;
        QTRY_VERIFY2((player = m_home->read(children).simplified().toInt()) > 0, qPrintable(editor.errors()));
        server.end();
        QCOMPARE(editor.exitCode(), 1);
        QTRY_VERIFY(::kill(player, 0) != 0);
    }

private:
    std::optional<TemporaryHome> m_home;
};

QTEST_MAIN(TestShutdown)
#include "tst_shutdown.moc"
