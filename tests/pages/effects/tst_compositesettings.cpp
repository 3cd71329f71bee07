#include "pages/effects/compositesettings.h"
#include "platform/qazsettings.h"
#include "tests/support/environment.h"
#include "tests/support/spawnedprocess.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <memory>

#include <unistd.h>

Q_DECLARE_METATYPE(CompositeState)

namespace {

const QString themeFile = QStringLiteral(".config/qaz/current.themerc");
const QString kompmgrFile = QStringLiteral(".config/qaz/kompmgrrc");
const QString comptonFile = QStringLiteral(".config/compton.conf");

/// A session whose manager is installed in PATH under a name that no other test uses.
class Session
{
public:
    explicit Session(const QString &manager)
        : m_path("PATH", QFile::encodeName(m_home.path(QStringLiteral("bin"))))
        , m_manager(manager)
        , m_program(installWaitingProgram(m_home.path(QStringLiteral("bin/") + manager)))
    {
        home().makeDirectory(QStringLiteral(".config/qaz"));
    }

    const TemporaryHome &home() const { return m_home; }
    QString comptonConfigPath() const { return m_comptonConfigPath; }

    void startManager()
    {
        m_process = std::make_unique<SpawnedProcess>(m_program,
                                                     QStringList{m_program, QStringLiteral("3600")});
    }
    void writeTheme(const QByteArray &lines) const
    {
        m_home.write(themeFile, "CompositeManager=" + m_manager.toUtf8() + '\n' + lines);
    }
    /// The lines of the theme file below the manager's own.
    QByteArray themeLines() const
    {
        const QByteArray text = m_home.read(themeFile);
        return text.mid(text.indexOf('\n') + 1);
    }
    CompositeState load(const CompositeState &shown = {})
    {
        QazSettings store(m_home.path(themeFile));
        store.sync(true);
        return CompositeSettings(&store, &m_comptonConfigPath).load(shown);
    }
    void save(const CompositeState &state)
    {
        QazSettings store(m_home.path(themeFile));
        store.sync(true);
        CompositeSettings(&store, &m_comptonConfigPath).save(state);
    }
    QStringList backups() const
    {
        return QDir(m_home.path(QStringLiteral(".local/state/qaz/backup")))
            .entryList({QStringLiteral("*Z-*")});
    }

private:
    const TemporaryHome m_home;
    ScopedEnvironment m_path;
    QString m_manager;
    QString m_program;
    std::unique_ptr<SpawnedProcess> m_process;
    QString m_comptonConfigPath;
};

// Another run of this test on the same machine must not pass for this one's managers.
const QString ownManager = QStringLiteral("qaz-kompmgr-%1").arg(::getpid());
const QString compton = QStringLiteral("compton-%1").arg(::getpid());
const QString off = QStringLiteral("QAZWM_UPDATE_VAL UseComposite false");
const QString on = QStringLiteral("QAZWM_UPDATE_VAL UseComposite true");

} // namespace

class TestCompositeSettings : public QObject
{
    Q_OBJECT
private slots:
    void boxShowsWhetherTheManagerRuns_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("runs");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *title, const char *stored, bool runs, const char *after) {
            QTest::newRow(title) << QByteArray(stored) << runs << QByteArray(after);
        };
        row("on and running", "UseComposite=True\n", true, "UseComposite=True\n");
        row("on by default and running", "", true, "");
        row("off, but running", "UseComposite=false\n", true, "UseComposite=true\n");
        row("in capitals, so off, but running", "UseComposite=TRUE\n", true, "UseComposite=true\n");
        row("on, but not running", "UseComposite=true\n", false, "UseComposite=false\n");
        row("on by default, but not running", "", false, "UseComposite=false\n");
        row("off and not running", "UseComposite=no\n", false, "UseComposite=no\n");
    }
    void boxShowsWhetherTheManagerRuns()
    {
        QFETCH(QByteArray, stored);
        QFETCH(bool, runs);
        QFETCH(QByteArray, after);
        WmListener windowManager;
        Session session(ownManager);
        session.writeTheme(stored);
        if (runs)
            session.startManager();
        QCOMPARE(session.load().managerOn, runs);
        QCOMPARE(session.themeLines(), after);
        QCOMPARE(windowManager.take(), QStringList());
    }

    void managerThatIsNotFoundIsSwitchedOff()
    {
        Session session(ownManager);
        WmListener windowManager;
        session.home().write(themeFile, "CompositeManager=no-%s-compton\nUseComposite=true\n");
        const QByteArray kompmgr = "[kompmgr]\nIgnoreTransparency=false\n";
        session.home().write(kompmgrFile, kompmgr);
        StandardError messages;
        const CompositeState state = session.load({true, false, true});
        QCOMPARE(messages.take(),
                 QByteArray("qaz-admin-wm: can't find CompositeManager='no-%s-compton' in PATH\n"));
        QVERIFY(!state.managerOn && !state.transparency && state.shadow);
        QCOMPARE(session.themeLines(), QByteArray("UseComposite=false\n"));
        QVERIFY(session.comptonConfigPath().isEmpty());
        session.save(state);
        QVERIFY(!session.home().exists(comptonFile));

        // A save to a theme that still says on tells the window manager; kompmgrrc is overwritten, but kept.
        session.home().write(themeFile, "CompositeManager=gone\nUseComposite=true\n");
        session.save({});
        QCOMPARE(session.themeLines(), QByteArray("UseComposite=false\n"));
        QCOMPARE(windowManager.take(), QStringList{off});
        QCOMPARE(session.home().read(kompmgrFile), QByteArray("[kompmgr]\nIgnoreTransparency=true\n"));
        QCOMPARE(session.backups().size(), 1);
        QCOMPARE(session.home().read(QStringLiteral(".local/state/qaz/backup/") + session.backups().first()),
                 kompmgr);
    }

    void kompmgrFileIsReadAsNegations_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("transparency");
        QTest::addColumn<bool>("shadow");
        QTest::newRow("no file") << QByteArray() << false << false;
        QTest::newRow("another group")
            << QByteArray("[other]\nCompmode=CompClientShadows\n") << false << false;
        QTest::newRow("both on") << QByteArray(
            "[kompmgr]\nIgnoreTransparency=false\nCompmode=CompClientShadows\n")
                                 << true << true;
        QTest::newRow("other texts") << QByteArray(
            "[kompmgr]\nIgnoreTransparency=TRUE\nCompmode=compsimple\n")
                                     << true << true;
        QTest::newRow("longer texts")
            << QByteArray("[kompmgr]\nIgnoreTransparency=untrue\nCompmode=CompSimple2\n") << false << false;
    }
    void kompmgrFileIsReadAsNegations()
    {
        QFETCH(QByteArray, content);
        Session session(ownManager);
        session.writeTheme({});
        if (!content.isNull())
            session.home().write(kompmgrFile, content);
        const CompositeState state = session.load({false, true, true});
        QTEST(state.transparency, "transparency");
        QTEST(state.shadow, "shadow");
        // What was loaded is saved without a trace, whatever its text.
        const QString before = session.home().fingerprint();
        session.save(state);
        QCOMPARE(session.home().fingerprint(), before);
    }

    void runningManagerIsRestartedOnlyForAChangedFile_data()
    {
        QTest::addColumn<QString>("manager");
        QTest::addColumn<QByteArray>("use");
        QTest::addColumn<CompositeState>("state");
        QTest::addColumn<QStringList>("commands");
        for (const QString &manager : {ownManager, compton}) {
            const auto row = [&](const char *title, const char *use, const CompositeState &state,
                                 const QStringList &commands) {
                QTest::addRow("%s, %s", qPrintable(manager), title)
                    << manager << QByteArray(use) << state << commands;
            };
            row("only the file", "UseComposite=true\n", {true, false, true}, {off, on});
            row("nothing", "UseComposite=true\n", {true, false, false}, {});
            row("switched on with the file", "UseComposite=false\n", {true, true, true}, {on});
            row("switched off with the file", "UseComposite=true\n", {false, true, true}, {off});
            row("another text for true", "UseComposite=True\n", {true, true, true}, {});
            row("no text at all", "", {true, true, true}, {on});
        }
    }
    void runningManagerIsRestartedOnlyForAChangedFile()
    {
        QFETCH(QString, manager);
        QFETCH(QByteArray, use);
        QFETCH(CompositeState, state);
        Session session(manager);
        session.writeTheme(use);
        session.home().write(kompmgrFile, "; mine\n[kompmgr]\nOther=\"a, b\"\n\n[more]\nkey=1\n");
        session.home().write(comptonFile, "# mine\nshadow = false;\nenable-transparency = false;\n");
        session.startManager();
        session.load();
        session.writeTheme(use);
        WmListener windowManager;
        session.save(state);
        QTEST(windowManager.take(), "commands");
        const QByteArray expectedUse = state.managerOn == use.contains("rue")
                                           ? use
                                           : QByteArray(state.managerOn ? "UseComposite=true\n"
                                                                        : "UseComposite=false\n");
        QCOMPARE(session.themeLines(), expectedUse);
        QCOMPARE(session.backups().size(), state.transparency || state.shadow ? 1 : 0);
        const CompositeState reloaded = session.load();
        QCOMPARE(reloaded.transparency, state.transparency);
        QCOMPARE(reloaded.shadow, state.shadow);
        QVERIFY(session.home().read(kompmgrFile).contains("Other=\"a, b\""));
        QVERIFY(session.home().read(comptonFile).startsWith("# mine\n"));
    }

    void comptonFileIsMadeAndBothValuesAreWrittenFirst()
    {
        Session session(compton);
        session.writeTheme({});
        session.startManager();
        const CompositeState state = session.load({false, true, true});
        QVERIFY(state.managerOn && !state.transparency && !state.shadow);
        QCOMPARE(session.home().read(comptonFile), QByteArray(""));
        session.save(state);
        QCOMPARE(session.home().read(comptonFile),
                 QByteArray("enable-transparency = false;\nshadow = false;\n"));
    }

    void unreadableComptonFileIsToldAndLeft()
    {
        Session session(compton);
        session.writeTheme({});
        const QByteArray path = QFile::encodeName(session.home().write(comptonFile, "shadow = "));
        const QByteArray message = "qaz-admin-theme: Can't read " + path + '\n';
        StandardError messages;
        const CompositeState state = session.load({false, true, true});
        QCOMPARE(messages.take(), message);
        QVERIFY(state.transparency && state.shadow);
        session.save({});
        QCOMPARE(messages.take(), message);
        QCOMPARE(session.home().read(comptonFile), QByteArray("shadow = "));
    }

    void comptonFileIsResolvedOnce()
    {
        Session session(compton);
        session.writeTheme({});
        const QString old = session.home().write(QStringLiteral(".compton.conf"), "shadow = true;\n");
        QVERIFY(session.load().shadow);
        session.home().write(comptonFile, "shadow = false;\n");
        QVERIFY(session.load().shadow);
        QCOMPARE(session.comptonConfigPath(), old);
    }

    void comptonPlacesAreTriedInOrder_data()
    {
        QTest::addColumn<QString>("configHome");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("resolved");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("told");
        const auto row = [](const char *title, const char *configHome, const char *files,
                            const char *resolved, const QByteArray &content, bool told = false) {
            QTest::newRow(title) << QString::fromLatin1(configHome)
                                 << QString::fromLatin1(files).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                 << QString::fromLatin1(resolved) << content << told;
        };
        row("the configured directory", "xdg", "xdg/compton.conf .config/compton.conf .compton.conf etc",
            "xdg/compton.conf", "xdg/compton.conf");
        row("the default directory", "", ".config/compton.conf .compton.conf etc", ".config/compton.conf",
            ".config/compton.conf");
        row("the old place", "xdg", ".config/compton.conf .compton.conf etc", ".compton.conf",
            ".compton.conf");
        row("a copy of the system's", "xdg", ".config/x etc", ".config/compton.conf", "etc");
        row("a user's file is not emptied", "xdg", ".config/compton.conf", ".config/compton.conf",
            ".config/compton.conf");
        row("a new file", "xdg", ".config/x", ".config/compton.conf", "");
        row("no directory for a new file", "", "", ".config/compton.conf", QByteArray(), true);
        row("no directory for a copy", "", "etc", ".config/compton.conf", QByteArray());
    }
    void comptonPlacesAreTriedInOrder()
    {
        QFETCH(QString, configHome);
        QFETCH(QStringList, files);
        QFETCH(QString, resolved);
        const TemporaryHome home;
        for (const QString &file : qAsConst(files))
            home.write(file, file.toLatin1());
        StandardError messages;
        const QString path = resolveComptonConfig({configHome.isEmpty() ? QString() : home.path(configHome),
                                                   home.path(), home.path(QStringLiteral("etc"))});
        QCOMPARE(path, home.path(resolved));
        QTEST(home.read(resolved), "content");
        QFETCH(bool, told);
        QCOMPARE(messages.take(),
                 told ? "qaz-admin-theme: Can't create " + QFile::encodeName(path) + '\n' : QByteArray());
    }
};

QTEST_MAIN(TestCompositeSettings)
#include "tst_compositesettings.moc"
