#include "settings/wmcommands.h"
#include "tests/bridge/bridgeprocess.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/privateserver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <QX11Info>

#include <csignal>

#include <X11/Xlib.h>

namespace {

const QString themeFile = ".config/qaz/current.themerc"_s;

/// Takes a selection, or leaves it.
void own(const char *selection, bool isTaken)
{
    Display *display = QX11Info::display();
    const Window owner = isTaken ? QX11Info::appRootWindow() : 0;
    XSetSelectionOwner(display, XInternAtom(display, selection, False), owner, CurrentTime);
    XSync(display, False);
}

} // namespace

/// The program among recording stand-ins for the session's tools.
class TestBridgeProgram : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_programs.reset(); // what is put back comes before what is put in its place
        m_home.reset();
        m_home = std::make_unique<TemporaryHome>();
        m_home->write(themeFile, "WallPaper=#000000\n");
        m_programs = std::make_unique<FakePrograms>(FakePrograms::Path::Instead);
        for (const char *tool : {"feh", "xset", "openbox"})
            m_programs->add(QLatin1String(tool));
        m_programs->add("xsettingsd"_s, "exec /bin/sleep 3600");
        QTRY_VERIFY(!BridgeProcess::isServing());
    }

    void optionsAreReadStrictly()
    {
        const std::tuple<QString, int, QString> rows[] = {
            {"--bogus"_s, 2, "qaz-wm-bridge: Unknown option 'bogus'."_s},
            {"a b"_s, 2, "qaz-wm-bridge: There is one theme file at most, not 'b'"_s},
            {"/missing"_s, 2, "qaz-wm-bridge: There is no theme file '/missing'"_s},
            {"--version"_s, 0, {}},
            {"--help"_s, 0, {}}};
        for (const auto &[arguments, code, line] : rows) {
            BridgeProcess bridge(arguments.split(u' '));
            QCOMPARE(bridge.exitCode(), code);
            QCOMPARE(bridge.errors().trimmed(), line);
            QCOMPARE(bridge.process().readAllStandardOutput().isEmpty(), code != 0);
        }
    }

    void aDryRunPrintsAndWritesNothing()
    {
        const ScopedEnvironment cache("XDG_CACHE_HOME", {}); // ~/.cache, too
        const std::tuple<QByteArray, QString> rows[] = {
            {"WallPaper=#123456\nScreenSaverDelay=0\nLockerDpmsOffTimeout=99999999\nUseComposite=true\n"
             "CompositeManager=/my manager\n",
             "feh --no-fehbg --image-bg '#123456' --bg-tile OWN/color-123456.ppm\n"
             "xsettingsd -c OWN/xsettingsd-DISPLAY.conf -s 0\nxset s 0\nxset dpms 0 0 65534\n'/my manager'\n"_s},
            {"WallPaper=" + QFile::encodeName(m_home->write("a.svg"_s, "<svg/>"))
                 + "\nWallPaperPos=Center\nDesktopColor=red\nLockerDpmsOffTimeout=0\n",
             "qaz-svg2png -w 1280 -h 1024 -i HOME/a.svg -o OWN/1280x1024-DIGEST.png\n"
             "feh --no-fehbg --image-bg '#ff0000' --bg-center OWN/1280x1024-DIGEST.png\n"
             "xsettingsd -c OWN/xsettingsd-DISPLAY.conf -s 0\nxset s 600\nxset -dpms\n"_s},
            {"", "feh --no-fehbg --image-bg '#0000ff' --bg-scale BUILD/share/qaz/wallpapers/qaz-default.jpg\n"
                 "xsettingsd -c OWN/xsettingsd-DISPLAY.conf -s 0\nxset s 600\nxset dpms 0 0 60\n"_s}};
        for (const auto &[content, expected] : rows) {
            const QString file = m_home->write("my theme"_s, content);
            const QString before = m_home->fingerprint();
            BridgeProcess bridge({"--once"_s, "--dry-run"_s, file});
            QCOMPARE(bridge.exitCode(), 0);
            QString output = QString::fromUtf8(bridge.process().readAllStandardOutput());
            output.replace(m_home->path(".cache/qaz/bridge"_s), "OWN"_s).replace(m_home->path(), "HOME"_s);
            output.replace(QStringLiteral(QAZ_BINARY_DIR), "BUILD"_s);
            output.replace(qEnvironmentVariable("DISPLAY"), "DISPLAY"_s);
            output.replace(QRegularExpression("[0-9a-f]{40}"_s), "DIGEST"_s);
            QCOMPARE(output, expected);
            QCOMPARE(m_home->fingerprint(), before);
        }
        QCOMPARE(m_programs->calls("feh"_s).size(), 0);
    }

    void onceStartsNothingThatStays()
    {
        m_programs->add("manager"_s);
        m_home->write(themeFile, "UseComposite=true\nCompositeManager=manager\n");
        QCOMPARE(BridgeProcess({"--once"_s}).exitCode(), 0);
        QCOMPARE(m_programs->calls("feh"_s).size() + m_programs->calls("xset"_s).size(), 3);
        QCOMPARE(m_programs->calls("xsettingsd"_s).size() + m_programs->calls("manager"_s).size(), 0);
    }

    void aBurstIsCarriedOutOnceWithItsLastValues()
    {
        m_home->write(themeFile, "WallPaper=#000001\n");
        BridgeProcess bridge({"--verbose"_s});
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        for (int i = 10; i < 40; ++i) {
            announce("WallPaper", "#0000%1"_s.arg(i));
            announce("ScreenSaverDelay", QString::number(i));
            announce("TaskbarHeight\x1b", "50"_s);
        }
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 4);
        QCOMPARE(m_programs->calls("xset"_s)[2], QStringList({"s"_s, "39"_s}));
        QTRY_COMPARE(m_programs->calls("feh"_s).size(), 2);
        QCOMPARE(m_programs->calls("feh"_s)[1][2], "#000039"_s);
        QVERIFY(bridge.errors().contains(
            "qaz-wm-bridge: Not for this program: QAZWM_UPDATE_VAL TaskbarHeight? 50\n"_s));

        // The file's own values count again after both of these.
        sendToWindowManager(restartCommand);
        QTRY_COMPARE(m_programs->calls("feh"_s).size(), 3);
        QCOMPARE(m_programs->calls("feh"_s)[2][2], "#000001"_s);
        m_home->write(themeFile, "WallPaper=#000002\n");
        ::kill(pid_t(bridge.process().processId()), SIGHUP);
        QTRY_COMPARE(m_programs->calls("feh"_s).size(), 4);
        QCOMPARE(m_programs->calls("feh"_s)[3][2], "#000002"_s);
    }

    void whatIsNoImageIsRefused()
    {
        m_home->write(themeFile, "DesktopColor=#204060\n");
        BridgeProcess bridge;
        QTRY_VERIFY(BridgeProcess::isServing());
        for (const QString &wallpaper : {"/dev/zero"_s, "--help"_s, m_home->write("a.png"_s, "text")}) {
            const int before = m_programs->calls("feh"_s).size();
            announce("WallPaper", wallpaper);
            QTRY_VERIFY(bridge.errors().contains("The wallpaper '%1' is no image file"_s.arg(wallpaper)));
            QTRY_VERIFY(m_programs->calls("feh"_s).size() > before);
            QVERIFY(m_programs->calls("feh"_s).last().last().endsWith("color-204060.ppm"_s));
        }
    }

    void theManagerComesFromTheFileAndRestarts()
    {
        m_programs->add("manager"_s, "exec /bin/sleep 3600");
        m_programs->add("evil"_s);
        m_home->write(themeFile, "UseComposite=false\nCompositeManager=manager\n");
        BridgeProcess bridge;
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        announce("CompositeManager", "evil"_s);
        announce("UseComposite", "true"_s);
        QTRY_COMPARE(m_programs->calls("manager"_s).size(), 1);
        announce("UseComposite", "false"_s);
        announce("UseComposite", "true"_s);
        QTRY_COMPARE(m_programs->calls("manager"_s).size(), 2);
        QCOMPARE(m_programs->calls("evil"_s).size(), 0);
        // Where another one runs it waits until that has gone.
        announce("UseComposite", "false"_s);
        own("_NET_WM_CM_S0", true);
        announce("UseComposite", "true"_s);
        announce("ScreenSaverDelay", "1"_s);
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 4);
        QCOMPARE(m_programs->calls("manager"_s).size(), 2);
        own("_NET_WM_CM_S0", false);
        QTRY_COMPARE(m_programs->calls("manager"_s).size(), 3);
    }

    void missingToolsCostOneLineEach()
    {
        const FakePrograms none(FakePrograms::Path::Instead);
        BridgeProcess bridge;
        QTRY_COMPARE(bridge.errors().count(u'\n'), 3);
        for (const char *color : {"#000001", "#000002"})
            announce("WallPaper", QLatin1String(color));
        announce("EnableSound", "true"_s);
        bridge.process().terminate();
        QCOMPARE(bridge.exitCode(), 0);
        QCOMPARE(bridge.errors(),
                 "qaz-wm-bridge: feh is not installed (Debian package feh)\n"
                 "qaz-wm-bridge: xsettingsd is not installed (Debian package xsettingsd)\n"
                 "qaz-wm-bridge: xset is not installed (Debian package x11-xserver-utils)\n"_s);
    }

    void oneBridgeServesAScreen()
    {
        BridgeProcess first;
        QTRY_COMPARE(m_programs->calls("xsettingsd"_s).size(), 1);
        QCOMPARE(BridgeProcess().exitCode(), 1);
        BridgeProcess third({"--replace"_s});
        QCOMPARE(first.exitCode(), 0);
        QCOMPARE(first.errors(), "qaz-wm-bridge: Another bridge has taken over\n"_s);
        QVERIFY(BridgeProcess::isServing());
        own("_QAZWM_S0", true);
        QCOMPARE(third.exitCode(), 0);
        QCOMPARE(BridgeProcess().exitCode(), 0);
        own("_QAZWM_S0", false);
    }

    void noChildOutlivesIt()
    {
        for (const bool serverDies : {false, true}) {
            init();
            m_programs->add("xsettingsd"_s, "echo $$ >'" + QFile::encodeName(m_home->path("pid"_s))
                                                + "'; exec /bin/sleep 3600");
            PrivateServer server;
            BridgeProcess bridge;
            QTRY_VERIFY(m_home->read("pid"_s).endsWith('\n'));
            serverDies ? server.end() : bridge.process().kill();
            QCOMPARE(bridge.exitCode(), serverDies ? 1 : -1);
            QTRY_VERIFY(::kill(m_home->read("pid"_s).toInt(), 0) == -1);
            if (serverDies)
                QCOMPARE(bridge.errors(), "qaz-wm-bridge: The X server is gone\n"_s);
        }
    }

private:
    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<FakePrograms> m_programs;
};

QTEST_MAIN(TestBridgeProgram)
#include "tst_bridgeprogram.moc"
