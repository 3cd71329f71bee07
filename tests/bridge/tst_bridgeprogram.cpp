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
        m_bridge.reset();
        m_calls.clear();
        m_programs.reset(); // what is put back comes before what is put in its place
        m_home.reset();
        m_home = std::make_unique<TemporaryHome>();
        m_home->write(themeFile, "WallPaper=#000000\n");
        m_programs = std::make_unique<FakePrograms>(FakePrograms::Path::Instead);
        for (const char *tool : {"feh", "xset", "openbox"})
            m_programs->add(QLatin1String(tool));
        m_programs->add("xsettingsd"_s, "exec /bin/sleep 3600");
        for (const char *property :
             {"_NET_CLIENT_LIST", "_NET_WM_STATE", "_NET_CURRENT_DESKTOP", "_NET_SUPPORTING_WM_CHECK"})
            XDeleteProperty(QX11Info::display(), QX11Info::appRootWindow(), atom(property));
        XSync(QX11Info::display(), False);
        QTRY_VERIFY(!BridgeProcess::isServing());
    }

    void aDryRunPrintsAndWritesNothing()
    {
        const ScopedEnvironment cache("XDG_CACHE_HOME", {}); // ~/.cache, too
        replay("bridge/qaz-wm-bridge.txt"_s, m_home.get());
        BridgeProcess staying({"--dry-run"_s});
        QTRY_VERIFY(staying.process().bytesAvailable() > 0);
        QCOMPARE(m_programs->calls("feh"_s).size(), 0);
    }

    void sessionsGoAsTheyAreWritten_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {"once", "nowhere", "bursts", "manager", "missing", "openbox", "screen", "sounds"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void sessionsGoAsTheyAreWritten()
    {
        QFETCH(QString, name);
        const QByteArray place = QFile::encodeName(m_home->path("own"_s));
        const ScopedEnvironment data("XDG_DATA_HOME", place), configuration("XDG_CONFIG_HOME", place),
            cache("XDG_CACHE_HOME", place);
        m_home->write("broken"_s, "#!/nowhere\n");
        QVERIFY(QFile::setPermissions(m_home->path("broken"_s), QFile::ReadOwner | QFile::ExeOwner));
        replay("bridge/%1.txt"_s.arg(name), m_home.get(),
               [this](const QString &step, const QString &expected) { return carryOut(step, expected); });
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
        for (int i = 0; i < 10; ++i) { // also while it starts its programs, a bridge ends orderly
            BridgeProcess second({"--replace"_s});
            QTRY_VERIFY(XPending(display.get()) > 0);
            second.process().terminate();
            QCOMPARE(second.exitCode(), 0);
            XNextEvent(display.get(), &event);
            if (i == 0)
                QCOMPARE(event.type, DestroyNotify); // comes before the other one's announcement
            XSync(display.get(), True);
        }
        QCOMPARE(first.exitCode(), 0);
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
    /// Carries out a step of a session and waits until what comes of it is as expected.
    QString carryOut(QString step, const QString &expected)
    {
        step.replace("HOME"_s, m_home->path()).replace("DISPLAY"_s, qEnvironmentVariable("DISPLAY"));
        const QString word = step.section(u' ', 0, 0), rest = step.section(u' ', 1);
        const QString name = step.section(u' ', 1, 1), value = step.section(u' ', 2);
        QTimer others; // do not end
        connect(&others, &QTimer::timeout, this, [] { announce("TitlebarColor", "#000001"_s); });
        if (word == "bridge"_s) {
            m_bridge = std::make_unique<BridgeProcess>(rest.split(u' ', Qt::SkipEmptyParts));
            m_told = 0;
        } else if (word == "program"_s)
            m_programs->add(name, value.toUtf8());
        else if (word == "remove"_s)
            QFile::remove(m_programs->directory() + u'/' + name);
        else if (word == "root"_s)
            setOnRoot(name, value.section(u' ', 0, 0),
                      value.section(u' ', 1).replace("ROOT"_s, QString::number(QX11Info::appRootWindow())));
        else if (word == "own"_s || word == "leave"_s)
            own(name.toLatin1().constData(), word == "own"_s);
        else if (word == "signal"_s)
            ::kill(pid_t(m_bridge->process().processId()), name.toInt());
        else if (word == "meanwhile"_s)
            others.start(1);
        if (word == "send"_s || word == "meanwhile"_s)
            for (const QString &command : rest.split(u'|'))
                sendToWindowManager(command.toUtf8() + '\n');
        QMap<QString, QString> news;
        QString actual;
        const auto isAsExpected = [&] {
            look(&news);
            if (word == "read"_s)
                news[word] = QString::fromUtf8(m_home->read(name)) + u'\n';
            actual = withoutPlaces(QStringList(news.values()).join(QString()).toUtf8(), *m_home);
            return actual == expected;
        };
        return QTest::qWaitFor(isAsExpected) ? expected : actual;
    }
    /// Adds what each stand-in was called with and what the bridge told since the last look, and how it ended.
    void look(QMap<QString, QString> *news)
    {
        for (const QString &file : QDir(m_programs->directory()).entryList({"*.calls"_s})) {
            const QString name = file.section(u'.', 0, 0);
            const auto calls = m_programs->calls(name).mid(m_calls[name]);
            for (const QStringList &call : calls)
                (*news)[name] += name + u' ' + call.join(u' ') + u'\n';
            m_calls[name] += calls.size();
        }
        if (!m_bridge)
            return;
        (*news)["!"_s] += m_bridge->errors().mid(m_told);
        m_told = m_bridge->errors().size();
        if (m_bridge->process().state() == QProcess::NotRunning) {
            (*news)["status"_s] = "status %1\n"_s.arg(m_bridge->exitCode());
            m_bridge.reset();
        }
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<FakePrograms> m_programs;
    std::unique_ptr<BridgeProcess> m_bridge;
    QMap<QString, int> m_calls; // of each stand-in, seen so far
    int m_told = 0;
};

QTEST_MAIN(TestBridgeProgram)
#include "tst_bridgeprogram.moc"
