#include "bridge/programs.h"
#include "bridge/wallpaper.h"
#include "bridge/xconnection.h"
#include "tests/bridge/bridgeprocess.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/privateserver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"
#include "tests/tools/toolrun.h"

#include <QX11Info>

#include <csignal>

#include <X11/Xlib.h>

namespace {

Atom atom(const char *name)
{
    return XInternAtom(QX11Info::display(), name, False);
}

/// Takes a selection, or leaves it.
void own(const char *selection, bool isTaken)
{
    XSetSelectionOwner(QX11Info::display(), atom(selection), isTaken ? QX11Info::appRootWindow() : 0,
                       CurrentTime);
    XSync(QX11Info::display(), False);
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

    void aDryRunPrintsAndWritesNothing()
    {
        const ScopedEnvironment cache("XDG_CACHE_HOME", {}); // ~/.cache, too
        replay("bridge/qaz-wm-bridge.txt"_s, nullptr, m_home.get());
        BridgeProcess staying({"--dry-run"_s});
        QTRY_VERIFY(staying.process().bytesAvailable() > 0);
        QCOMPARE(m_programs->calls("feh"_s).size(), 0);
    }

    void onceStartsNothingThatStays()
    {
        m_programs->add("manager"_s);
        m_programs->add("xset"_s, "opened=$(/bin/readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\n"
                                  "echo \"$opened\" >\"$HOME/opened\"");
        m_home->write(".config/qaz/qaz-admin-theme.conf"_s,
                      "[General]\ndontChangeAASettings=false\nXftAntialias=true\n");
        m_home->write(themeFile,
                      "UseComposite=true\nCompositeManager=manager\nWallPaper=#000\nIconTheme=tirsk\n"
                      "DefaultFont=DejaVu Sans-9:bold\nCursorTheme=arrow\n");
        QCOMPARE(BridgeProcess({"--once"_s}).exitCode(), 0);
        QCOMPARE(m_programs->calls("feh"_s).size() + m_programs->calls("xset"_s).size(), 3);
        QCOMPARE(m_programs->calls("xsettingsd"_s).size() + m_programs->calls("manager"_s).size(), 0);
        QCOMPARE(m_home->read("opened"_s), QByteArray("/dev/null\n/dev/null\n/dev/null\n"));
        QCOMPARE(
            m_home->read(".cache/qaz/bridge/xsettingsd-%1.conf"_s.arg(qEnvironmentVariable("DISPLAY"))),
            QByteArray("Gtk/FontName \"DejaVu Sans Bold 9\"\nNet/IconThemeName \"tirsk\"\n"
                       "Gtk/CursorThemeName \"arrow\"\nXft/Antialias 1\nXft/RGBA \"rgb\"\nXft/Hinting 1\n"
                       "Xft/HintStyle \"hintfull\"\n"));
        QCOMPARE(m_home->mode(".cache/qaz/bridge/color-000000.ppm"_s), 0600U);
        const ScopedEnvironment cache("XDG_CACHE_HOME", "/dev/null");
        BridgeProcess full({"--once"_s});
        QCOMPARE(full.exitCode(), 0);
        QCOMPARE(
            full.errors().replace(qEnvironmentVariable("DISPLAY"), "DISPLAY"_s),
            "qaz-wm-bridge: Can't write /dev/null/qaz/bridge/color-000000.ppm: Can't create directory "
            "/dev/null/qaz/bridge\nqaz-wm-bridge: Can't write /dev/null/qaz/bridge/xsettingsd-DISPLAY.conf: "
            "Can't create directory /dev/null/qaz/bridge\n"_s);
    }

    void aBurstIsCarriedOutOnceWithItsLastValues()
    {
        m_home->write(themeFile, "WallPaper=#000001\n");
        BridgeProcess bridge({"--verbose"_s});
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        announce("ScreenSaverDelay", "1"_s);
        QTimer others; // do not end
        connect(&others, &QTimer::timeout, this, [] { announce("TitlebarColor", "#000001"_s); });
        others.start(1);
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 4);
        others.stop();
        for (int i = 10; i < 40; ++i) {
            announce("WallPaper", "#0000%1"_s.arg(i));
            announce("ScreenSaverDelay", QString::number(i));
            announce("TaskbarHeight\x1b", "50"_s);
        }
        QTRY_COMPARE(m_programs->calls("xset"_s).value(4).join(u' '), "s 39"_s);
        QTRY_COMPARE(m_programs->calls("feh"_s).value(1).value(2), "#000039"_s);

        // The file's own values count again after both of these.
        sendToWindowManager(restartCommand);
        QTRY_COMPARE(m_programs->calls("feh"_s).value(2).value(2), "#000001"_s);
        m_home->write(themeFile, "WallPaper=#000002\nDesktopColor=#204060\n");
        ::kill(pid_t(bridge.process().processId()), SIGHUP);
        QTRY_COMPARE(m_programs->calls("feh"_s).value(3).value(2), "#000002"_s);
        announce("WallPaper", "--help"_s);
        QTRY_VERIFY(m_programs->calls("feh"_s).value(4).join(u' ').endsWith("color-204060.ppm"_s));
        for (const char *told : {"Not for this program: QAZWM_UPDATE_VAL TaskbarHeight? 50\n", "xset s 39\n"})
            QTRY_VERIFY2(bridge.errors().contains("qaz-wm-bridge: "_s + QLatin1String(told)), told);
    }

    void theManagerComesFromTheFileAndRestarts()
    {
        // Ends by itself the first time, and is left so; later it fails while another one runs.
        m_programs->add("manager"_s, "[ -e \"$HOME/ended\" ] || { : >\"$HOME/ended\"; exit; }\n"
                                     "trap 'kill $!; wait; printf - >>\"$HOME/log\"' TERM\n"
                                     "/usr/bin/flock -nF \"$HOME\" /bin/sleep 3600 &\n"
                                     "printf + >>\"$HOME/log\"\nwait $!");
        m_programs->add("xsettingsd"_s, "until [ -e \"$HOME/end\" ]; do /bin/sleep 0.01; done");
        m_home->write(themeFile, "UseComposite=false\nCompositeManager=manager\n");
        BridgeProcess bridge;
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        announce("DefaultFont", "Sans-9"_s);
        announce("CompositeManager", "evil"_s);
        announce("UseComposite", "true"_s);
        QTRY_COMPARE(m_programs->calls("manager"_s).size(), 1);
        m_home->write("end"_s, {}); // of the settings manager, before it knows the font
        for (const char *log : {"+", "+-+"}) {
            announce("UseComposite", "false"_s);
            announce("UseComposite", "true"_s);
            QTRY_COMPARE(m_home->read("log"_s), QByteArray(log));
        }
        // Where another one runs it waits until that has gone.
        announce("UseComposite", "false"_s);
        QTRY_COMPARE(m_home->read("log"_s), QByteArray("+-+-"));
        own("_NET_WM_CM_S0", true);
        announce("UseComposite", "true"_s);
        announce("ScreenSaverDelay", "1"_s);
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 4);
        QCOMPARE(m_programs->calls("manager"_s).size(), 3);
        own("_NET_WM_CM_S0", false);
        QTRY_COMPARE(m_home->read("log"_s), QByteArray("+-+-+"));
        QTRY_COMPARE(m_programs->calls("xsettingsd"_s).size(), 2);
        bridge.process().terminate();
        QCOMPARE(bridge.exitCode(), 0);
        QCOMPARE(bridge.errors(), QString()); // who was asked to end has not failed
        QCOMPARE(m_home->read("log"_s), QByteArray("+-+-+-"));
    }

    void missingToolsCostOneLineEach()
    {
        FakePrograms none(FakePrograms::Path::Instead);
        const QByteArray broken = QFile::encodeName(m_home->write("broken"_s, "#!/nowhere\n"));
        QVERIFY(QFile::setPermissions(m_home->path("broken"_s), QFile::ReadOwner | QFile::ExeOwner));
        m_home->write(themeFile, "WallPaper=#000\nEnableSound=true\nSystemStartSound=" + broken
                                     + "\nUseComposite=true\nCompositeManager=" + broken + '\n');
        BridgeProcess bridge;
        QTRY_COMPARE(bridge.errors().count(u'\n'), 5);
        announce("TaskbarHeight", "50"_s);
        announce("WallPaper", "none"_s);
        QTRY_COMPARE(bridge.errors().count(u'\n'), 6);
        bridge.process().terminate();
        QCOMPARE(bridge.exitCode(), 0);
        QCOMPARE(bridge.errors(), "qaz-wm-bridge: aplay is not installed (Debian package alsa-utils)\n"
                                  "qaz-wm-bridge: feh is not installed (Debian package feh)\n"
                                  "qaz-wm-bridge: xsettingsd is not installed (Debian package xsettingsd)\n"
                                  "qaz-wm-bridge: xset is not installed (Debian package x11-xserver-utils)\n"
                                  "qaz-wm-bridge: broken failed or took too long\n"
                                  "qaz-wm-bridge: The wallpaper 'none' is no image file\n"_s);
        none.add("qaz-svg2png"_s, "/bin/sleep 0.3"); // long enough for a look at the server
        m_home->write(".local/share/wallpapers/drawn.svg"_s, "<svg/>");
        m_home->write(themeFile, "WallPaper=drawn\n");
        QCOMPARE(BridgeProcess({"--once"_s}).exitCode(), 0);
    }

    void slidesAndDrawingsAreShown()
    {
        for (const char *name : {"a.png", "b.png"})
            QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(m_home->path(QLatin1String(name))));
        Values values(m_home->write(themeFile, "WallPaperPeriod=99999\nWallPaper="
                                                   + QFile::encodeName(m_home->path("a.png"_s)) + '\n'));
        const Options options;
        Programs programs(options);
        XConnection x;
        Wallpaper wallpaper({x, values, programs, options});
        wallpaper.apply();
        QTRY_COMPARE(m_programs->calls("feh"_s).size(), 1);
        auto *timer = wallpaper.findChild<QTimer *>();
        QCOMPARE(timer->interval(), 3600 * 60 * 1000);
        timer->setSingleShot(true); // a slide at a time
        for (const char *name : {"b.png", "a.png", "b.png"}) {
            timer->start(0);
            QTRY_COMPARE(QFileInfo(m_programs->calls("feh"_s).last().last()).fileName(), QLatin1String(name));
            QTRY_VERIFY(programs.isIdle());
        }
        values.announce("DesktopColor"_s, "#010203"_s);
        wallpaper.apply();
        QTRY_COMPARE(m_programs->calls("feh"_s).last()[2], "#010203"_s);
        QVERIFY(m_programs->calls("feh"_s).last().last().endsWith("b.png"_s)); // goes on with the slide
        values.announce("WallPaper"_s, m_home->write("drawn/c.svg"_s, "<svg/>"));
        values.announce("WallPaperPeriod"_s, "1"_s);
        wallpaper.apply(); // without the tool that draws
        values.announce("WallPaperPeriod"_s, "0"_s);
        const QByteArray draw = "/bin/mkdir -p \"${8%/*}\"; /usr/bin/touch \"$8\" -d ";
        // It fails; it draws, but not for later, as the drawing is newer; it draws once more.
        for (const QByteArray &script :
             {QByteArray("exit 1"), draw + "2001-01-01", draw + "2037-01-01", draw, draw}) {
            m_programs->add("qaz-svg2png"_s, script);
            wallpaper.apply();
            QTRY_VERIFY(programs.children().isEmpty());
        }
        QVERIFY(!timer->isActive());
        QCOMPARE(m_programs->calls("qaz-svg2png"_s).size(), 3);
        QCOMPARE(m_programs->calls("feh"_s).size(), 9);
    }

    void anOpenboxThatComesLaterGetsItsTheme()
    {
        const QByteArray place = QFile::encodeName(m_home->path("own"_s));
        const ScopedEnvironment data("XDG_DATA_HOME", place), configuration("XDG_CONFIG_HOME", place);
        const QString file = m_home->write("own/openbox/rc.xml"_s, "text");
        BridgeProcess bridge({"--openbox"_s});
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        setOnRoot("_NET_WM_NAME"_s, "8u"_s, "Openbox"_s); // the root is as good as a window of its own
        setOnRoot("_NET_SUPPORTING_WM_CHECK"_s, "32c"_s, QString::number(QX11Info::appRootWindow()));
        QTRY_COMPARE(m_programs->calls("openbox"_s), QVector<QStringList>{{"--reconfigure"_s}});
        QVERIFY(m_home->read("own/themes/qaz/openbox-3/themerc"_s).startsWith("border.width: 1\n"));
        QTRY_COMPARE(bridge.errors(), "qaz-wm-bridge: Can't change "_s + file
                                          + ": it is no configuration file of Openbox with a theme\n"_s);
        const QByteArray plain = "<openbox_config><theme></theme></openbox_config>";
        setOnRoot("_OB_CONFIG_FILE"_s, "8u"_s, m_home->write("rc.xml"_s, plain));
        announce("TitleFont", "Sans-9:bold"_s);
        QTRY_COMPARE(m_programs->calls("openbox"_s).size(), 2);
        QVERIFY(m_home->read("rc.xml"_s)
                    .contains("<name>qaz</name><font place=\"ActiveWindow\"><name>Sans</name>"));
        m_home->write("rc.xml"_s, plain);
        setOnRoot("_NET_SUPPORTING_WM_CHECK"_s, "32c"_s, QString::number(QX11Info::appRootWindow()));
        announce("ScreenSaverDelay", "1"_s);
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 4);
        QCOMPARE(BridgeProcess({"--once"_s, "--replace"_s}).exitCode(), 0);
        QCOMPARE(m_programs->calls("openbox"_s).size(), 3); // not told again by whom it knows
        QCOMPARE(m_home->read("rc.xml"_s), plain);          // nobody allowed a change
        output("/usr/bin/xprop"_s, {"-root"_s, "-remove"_s, "_NET_SUPPORTING_WM_CHECK"_s});
    }

    void aWindowThatWantsAttentionIsHeard()
    {
        QVector<QStringList> heard;
        for (const QString &theme : {"old/"_s, ""_s, "new/"_s}) {
            const QString place = ".local/share/sounds/"_s + theme;
            m_home->write(place + "index.theme"_s, "[Sound Theme]\nName=x\nDirectories=.\n");
            heard.append({"-q"_s, m_home->write(place + "bell.wav"_s, "sound")});
        }
        const QByteArray open = QFile::encodeName(heard[1][1]);
        m_home->write(themeFile, "EnableSound=true\nSoundTheme=old\nSystemStartSound=bell\nOpenSound=" + open
                                     + "\nPagingSound=" + open + "\nRestoreDownSound=" + open + '\n');
        m_programs->add("aplay"_s);
        setOnRoot("_NET_CLIENT_LIST"_s, "32c"_s, "1"_s); // a window that has gone
        BridgeProcess bridge;
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        announce("SoundTheme", "new"_s);
        announce("ForceTrayMessageSound", "bell"_s);
        announce("ScreenSaverDelay", "1"_s);
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 4);
        setOnRoot("_NET_CURRENT_DESKTOP"_s, "32c"_s, "0"_s);                     // as before
        for (const QString &state : {"DEMANDS_ATTENTION"_s, "MAXIMIZED_VERT"_s}) // of no client yet
            setOnRoot("_NET_WM_STATE"_s, "32a"_s, "_NET_WM_STATE_"_s + state);
        setOnRoot("_NET_CLIENT_LIST"_s, "32c"_s, QString::number(QX11Info::appRootWindow()));
        QTRY_COMPARE(m_programs->calls("aplay"_s).size(), 2);
        setOnRoot("_NET_WM_STATE"_s, "32a"_s, "_NET_WM_STATE_DEMANDS_ATTENTION"_s);
        QTRY_COMPARE(m_programs->calls("aplay"_s), heard);
        for (const char *property : {"_NET_CLIENT_LIST", "_NET_WM_STATE", "_NET_CURRENT_DESKTOP"})
            XDeleteProperty(QX11Info::display(), QX11Info::appRootWindow(), atom(property));
    }

    void oneBridgeServesAScreen()
    {
        const std::unique_ptr<Display, int (*)(Display *)> display(XOpenDisplay(nullptr), XCloseDisplay);
        XSelectInput(display.get(), DefaultRootWindow(display.get()), StructureNotifyMask);
        XSync(display.get(), False);
        BridgeProcess first;
        XEvent event;
        QTRY_VERIFY(XPending(display.get()) > 0);
        XNextEvent(display.get(), &event);
        const XClientMessageEvent &message = event.xclient;
        const Window owner = XGetSelectionOwner(display.get(), atom("_QAZWM_BRIDGE_S0"));
        QVERIFY(output("/usr/bin/xwininfo"_s, {"-root"_s, "-children"_s})
                    .contains("0x%1 \"qaz-wm-bridge\": ()  1x1+-1+-1 "_s.arg(owner, 0, 16)));
        QCOMPARE(QVector<long>({long(message.message_type), message.format, long(message.window),
                                message.data.l[0] > 0, message.data.l[1],
                                message.data.l[2]}), // a time of the server's
                 QVector<long>({long(atom("MANAGER")), 32, long(QX11Info::appRootWindow()), true,
                                long(atom("_QAZWM_BRIDGE_S0")), long(owner)}));
        XSelectInput(display.get(), owner, StructureNotifyMask);
        XSync(display.get(), False);
        BridgeProcess second;
        QCOMPARE(second.exitCode(), 1);
        BridgeProcess third({"--replace"_s});
        QCOMPARE(first.exitCode(), 0);
        XNextEvent(display.get(), &event);
        QCOMPARE(event.type, DestroyNotify); // comes before the third one's announcement
        QVERIFY(XGetSelectionOwner(display.get(), atom("_QAZWM_BRIDGE_S0")) != owner);
        own("_QAZWM_S0", true);
        QCOMPARE(third.exitCode(), 0);
        BridgeProcess needless;
        QCOMPARE(needless.exitCode(), 0);
        QCOMPARE(second.errors() + first.errors() + third.errors() + needless.errors(),
                 "qaz-wm-bridge: Another bridge serves this screen already; --replace takes over\n"
                 "qaz-wm-bridge: Another bridge has taken over\n"
                 "qaz-wm-bridge: A Qaz window manager has come and follows the theme file itself\n"
                 "qaz-wm-bridge: A Qaz window manager runs here and follows the theme file itself\n"_s);
        own("_QAZWM_S0", false);
    }

    void noChildOutlivesIt()
    {
        for (const bool serverDies : {false, true}) {
            init();
            m_programs->add("xsettingsd"_s, "echo $$ >\"$HOME/pid\"; exec /bin/sleep 3600");
            PrivateServer server;
            BridgeProcess bridge;
            QTRY_VERIFY(m_home->read("pid"_s).endsWith('\n'));
            serverDies ? server.end() : bridge.process().kill();
            QCOMPARE(bridge.exitCode(), serverDies ? 1 : -1);
            QTRY_VERIFY(::kill(m_home->read("pid"_s).toInt(), 0) == -1);
            QCOMPARE(bridge.errors(), serverDies ? "qaz-wm-bridge: The X server is gone\n"_s : QString());
        }
    }

private:
    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<FakePrograms> m_programs;
};

QTEST_MAIN(TestBridgeProgram)
#include "tst_bridgeprogram.moc"
