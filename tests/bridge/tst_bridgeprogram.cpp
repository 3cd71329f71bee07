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

void setOnRoot(const QString &name, const QString &format, const QString &value)
{
    output("/usr/bin/xprop"_s, {"-root"_s, "-f"_s, name, format, "-set"_s, name, value});
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
        const QString own = ".cache/qaz/bridge/"_s;
        QCOMPARE(
            m_home->read(own + "xsettingsd-%1.conf"_s.arg(qEnvironmentVariable("DISPLAY"))),
            QByteArray("Gtk/FontName \"DejaVu Sans Bold 9\"\nNet/IconThemeName \"tirsk\"\n"
                       "Gtk/CursorThemeName \"arrow\"\nXft/Antialias 1\nXft/RGBA \"rgb\"\nXft/Hinting 1\n"
                       "Xft/HintStyle \"hintfull\"\n"));
        QCOMPARE(m_home->mode(own + "color-000000.ppm"_s), 0600U);
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
        for (int i = 10; i < 40; ++i) {
            announce("WallPaper", "#0000%1"_s.arg(i));
            announce("ScreenSaverDelay", QString::number(i));
            announce("TaskbarHeight\x1b", "50"_s);
        }
        QTRY_COMPARE(m_programs->calls("xset"_s).value(2).join(u' '), "s 39"_s);
        QTRY_COMPARE(m_programs->calls("feh"_s).value(1).value(2), "#000039"_s);

        // The file's own values count again after both of these.
        sendToWindowManager(restartCommand);
        QTRY_COMPARE(m_programs->calls("feh"_s).value(2).value(2), "#000001"_s);
        m_home->write(themeFile, "WallPaper=#000002\nDesktopColor=#204060\n");
        ::kill(pid_t(bridge.process().processId()), SIGHUP);
        QTRY_COMPARE(m_programs->calls("feh"_s).value(3).value(2), "#000002"_s);
        announce("WallPaper", "--help"_s);
        QTRY_VERIFY(m_programs->calls("feh"_s).value(4).join(u' ').endsWith("color-204060.ppm"_s));
        for (const char *told : {"Not for this program: QAZWM_UPDATE_VAL TaskbarHeight? 50\n", "xset s 39\n",
                                 "The wallpaper '--help' is no image file\n"})
            QTRY_VERIFY2(bridge.errors().contains("qaz-wm-bridge: "_s + QLatin1String(told)), told);
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
        bridge.process().terminate();
        QCOMPARE(bridge.exitCode(), 0);
        QCOMPARE(bridge.errors(), QString()); // who was asked to end has not failed
    }

    void missingToolsCostOneLineEach()
    {
        const FakePrograms none(FakePrograms::Path::Instead);
        const QByteArray broken = QFile::encodeName(m_home->write("broken"_s, "#!/nowhere\n"));
        QVERIFY(QFile::setPermissions(m_home->path("broken"_s), QFile::ReadOwner | QFile::ExeOwner));
        m_home->write(themeFile, "WallPaper=#000\nEnableSound=true\nSystemStartSound=" + broken
                                     + "\nUseComposite=true\nCompositeManager=" + broken + '\n');
        BridgeProcess bridge;
        QTRY_COMPARE(bridge.errors().count(u'\n'), 5);
        announce("WallPaper", "#000001"_s);
        announce("TaskbarHeight", "50"_s);
        bridge.process().terminate();
        QCOMPARE(bridge.exitCode(), 0);
        QCOMPARE(bridge.errors(), "qaz-wm-bridge: aplay is not installed (Debian package alsa-utils)\n"
                                  "qaz-wm-bridge: feh is not installed (Debian package feh)\n"
                                  "qaz-wm-bridge: xsettingsd is not installed (Debian package xsettingsd)\n"
                                  "qaz-wm-bridge: xset is not installed (Debian package x11-xserver-utils)\n"
                                  "qaz-wm-bridge: broken failed or took too long\n"_s);
        QCOMPARE(BridgeProcess({"--once"_s}).exitCode(), 0);
    }

    void slidesAndDrawingsAreShown()
    {
        const QString picture = m_home->path("a.png"_s);
        for (const char *name : {"a.png", "b.png"})
            QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(m_home->path(QLatin1String(name))));
        m_programs->add("qaz-svg2png"_s, "/bin/mkdir -p \"${8%/*}\"; : >\"$8\"");
        Values values(m_home->write(themeFile,
                                    "WallPaperPeriod=99999\nWallPaper=" + QFile::encodeName(picture) + '\n'));
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
        QFile drawing(m_home->write("drawn/c.svg"_s, "<svg/>"));
        QVERIFY(drawing.open(QFile::ReadOnly) // older than what is drawn of it at once
                && drawing.setFileTime(QDateTime::fromSecsSinceEpoch(1e9), QFile::FileModificationTime));
        values.announce("WallPaper"_s, drawing.fileName());
        values.announce("WallPaperPeriod"_s, "0"_s);
        for (int i = 0; i < 2; ++i) {
            wallpaper.apply();
            QTRY_VERIFY(programs.isIdle());
        }
        QVERIFY(!timer->isActive());
        QCOMPARE(m_programs->calls("qaz-svg2png"_s).size(), 1); // and not drawn anew
    }

    void anOpenboxThatComesLaterGetsItsTheme()
    {
        const ScopedEnvironment data("XDG_DATA_HOME", QFile::encodeName(m_home->path("data"_s)));
        const QString file = m_home->write("rc.xml"_s, "text");
        BridgeProcess bridge({"--openbox"_s});
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        setOnRoot("_OB_CONFIG_FILE"_s, "8u"_s, file);
        setOnRoot("_NET_WM_NAME"_s, "8u"_s, "Openbox"_s); // the root is as good as a window of its own
        setOnRoot("_NET_SUPPORTING_WM_CHECK"_s, "32c"_s, QString::number(QX11Info::appRootWindow()));
        QTRY_COMPARE(m_programs->calls("openbox"_s), QVector<QStringList>{{"--reconfigure"_s}});
        QVERIFY(m_home->read("data/themes/qaz/openbox-3/themerc"_s).startsWith("border.width: 1\n"));
        QTRY_COMPARE(
            bridge.errors(),
            "qaz-wm-bridge: Can't change %1: it is no configuration file of Openbox with a theme\n"_s.arg(
                file));
        const QByteArray plain = "<openbox_config><theme></theme></openbox_config>";
        m_home->write("rc.xml"_s, plain);
        announce("TitleFont", "Sans-9:bold"_s);
        QTRY_COMPARE(m_programs->calls("openbox"_s).size(), 2);
        QVERIFY(m_home->read("rc.xml"_s)
                    .contains("<name>qaz</name><font place=\"ActiveWindow\"><name>Sans</name>"));
        m_home->write("rc.xml"_s, plain);
        QCOMPARE(BridgeProcess({"--once"_s, "--replace"_s}).exitCode(), 0);
        QCOMPARE(m_home->read("rc.xml"_s), plain); // nobody allowed a change
        output("/usr/bin/xprop"_s, {"-root"_s, "-remove"_s, "_NET_SUPPORTING_WM_CHECK"_s});
    }

    void aWindowThatWantsAttentionIsHeard()
    {
        const QString sound = m_home->write("a.wav"_s, "sound");
        m_home->write(themeFile,
                      "EnableSound=true\nForceTrayMessageSound=" + QFile::encodeName(sound) + '\n');
        m_programs->add("aplay"_s);
        setOnRoot("_NET_CLIENT_LIST"_s, "32c"_s, QString::number(QX11Info::appRootWindow()));
        BridgeProcess bridge;
        QTRY_COMPARE(m_programs->calls("xset"_s).size(), 2);
        setOnRoot("_NET_WM_STATE"_s, "32a"_s, "_NET_WM_STATE_DEMANDS_ATTENTION"_s);
        QTRY_COMPARE(m_programs->calls("aplay"_s).value(0).value(1), sound);
        for (const char *property : {"_NET_CLIENT_LIST", "_NET_WM_STATE"})
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
        BridgeProcess second;
        QCOMPARE(second.exitCode(), 1);
        BridgeProcess third({"--replace"_s});
        QCOMPARE(first.exitCode(), 0);
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
            m_programs->add("xsettingsd"_s, "echo $$ >'" + QFile::encodeName(m_home->path("pid"_s))
                                                + "'; exec /bin/sleep 3600");
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
