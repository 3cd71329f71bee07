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

#include <sys/stat.h>
#include <unistd.h>

Q_DECLARE_METATYPE(CompositeState)

namespace {

const QString themeFile = QStringLiteral(".config/qaz/current.themerc");
const QString kompmgrFile = QStringLiteral(".config/qaz/kompmgrrc");
const QString comptonFile = QStringLiteral(".config/compton.conf");
const QString backupDirectory = QStringLiteral(".local/state/qaz/backup");

/// A session whose manager is installed in PATH under a name that no other test uses.
class Session
{
public:
    Session(const QString &manager, bool runs, const QByteArray &lines)
        : m_path("PATH", QFile::encodeName(home.path(QStringLiteral("bin"))))
        , m_manager(manager.toUtf8())
    {
        home.makeDirectory(QStringLiteral(".config/qaz"));
        const QString program = installWaitingProgram(home.path(QStringLiteral("bin/") + manager));
        if (runs)
            m_process = std::make_unique<SpawnedProcess>(program,
                                                         QStringList{program, QStringLiteral("3600")});
        writeTheme(lines);
    }

    void writeTheme(const QByteArray &lines) const
    {
        home.write(themeFile, "CompositeManager=" + m_manager + '\n' + lines);
    }
    /// The lines of the theme file below the manager's own.
    QByteArray themeLines() const
    {
        const QByteArray text = home.read(themeFile);
        return text.mid(text.indexOf('\n') + 1);
    }
    CompositeState load(const CompositeState &shown = {})
    {
        return loadComposite(openStore().get(), shown, &comptonConfigPath);
    }
    void save(const CompositeState &state) { saveComposite(openStore().get(), state, comptonConfigPath); }
    QStringList backups() const
    {
        return QDir(home.path(backupDirectory)).entryList({QStringLiteral("*Z-*")});
    }

    const TemporaryHome home;
    QString comptonConfigPath;

private:
    /// The store writes the file when it goes.
    std::unique_ptr<QazSettings> openStore() const
    {
        auto store = std::make_unique<QazSettings>(home.path(themeFile));
        store->sync(true);
        return store;
    }

    ScopedEnvironment m_path;
    QByteArray m_manager;
    std::unique_ptr<SpawnedProcess> m_process;
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
    void boxShowsWhetherTheManagerRuns()
    {
        struct Case {
            bool runs;
            QByteArray stored;
            QByteArray after;
        };
        const Case cases[] = {{true, "UseComposite=True\n", "UseComposite=True\n"},
                              {true, "", ""},
                              {true, "UseComposite=TRUE\n", "UseComposite=true\n"},
                              {false, "UseComposite=true\n", "UseComposite=false\n"},
                              {false, "", "UseComposite=false\n"},
                              {false, "UseComposite=no\n", "UseComposite=no\n"}};
        WmListener windowManager;
        for (const Case &one : cases) {
            Session session(ownManager, one.runs, one.stored);
            QCOMPARE(session.load().managerOn, one.runs);
            QCOMPARE(session.themeLines(), one.after);
        }
        QCOMPARE(windowManager.take(), QStringList());
    }

    void managerThatIsNotFoundIsSwitchedOff()
    {
        Session session(ownManager, true, {});
        WmListener windowManager;
        session.home.write(themeFile, "CompositeManager=no-%s-compton\nUseComposite=true\n");
        const QByteArray kompmgr = "[kompmgr]\nIgnoreTransparency=false\n";
        session.home.write(kompmgrFile, kompmgr);
        StandardError messages;
        const CompositeState state = session.load({true, false, true});
        QCOMPARE(messages.take(),
                 QByteArray("qaz-admin-wm: can't find CompositeManager='no-%s-compton' in PATH\n"));
        QVERIFY(!state.managerOn && !state.transparency && state.shadow);
        QCOMPARE(session.themeLines(), QByteArray("UseComposite=false\n"));
        QVERIFY(session.comptonConfigPath.isEmpty());
        session.save(state);
        QVERIFY(!session.home.exists(comptonFile));

        // A save to a theme that still says on tells the window manager; kompmgrrc is overwritten, but kept.
        session.home.write(themeFile, "CompositeManager=gone\nUseComposite=true\n");
        session.save({});
        QCOMPARE(session.themeLines(), QByteArray("UseComposite=false\n"));
        QCOMPARE(windowManager.take(), QStringList{off});
        QCOMPARE(session.home.read(kompmgrFile), QByteArray("[kompmgr]\nIgnoreTransparency=true\n"));
        QCOMPARE(session.backups().size(), 1);
        QCOMPARE(session.home.read(backupDirectory + QLatin1Char('/') + session.backups().first()), kompmgr);
    }

    void kompmgrFileIsReadAsNegations()
    {
        const QVector<QPair<QByteArray, bool>> files{
            {"[other]\nCompmode=CompClientShadows\n", false},
            {"[kompmgr]\nIgnoreTransparency=TRUE\nCompmode=compsimple\n", true},
            {"[kompmgr]\nIgnoreTransparency=untrue\nCompmode=CompSimple2\n", false}};
        for (const auto &[content, on] : files) {
            Session session(ownManager, false, {});
            session.home.write(kompmgrFile, content);
            const CompositeState state = session.load({false, !on, !on});
            QVERIFY2(state.transparency == on && state.shadow == on, content.constData());
            // What was loaded is saved without a trace, whatever its text.
            const QString before = session.home.fingerprint();
            session.save(state);
            QCOMPARE(session.home.fingerprint(), before);
        }
    }

    void runningManagerIsRestartedOnlyForAChangedFile_data()
    {
        QTest::addColumn<QByteArray>("use");
        QTest::addColumn<CompositeState>("state");
        QTest::addColumn<QStringList>("commands");
        const auto row = [](const char *title, const char *use, const CompositeState &state,
                            const QStringList &commands) {
            QTest::newRow(title) << QByteArray(use) << state << commands;
        };
        row("only the file", "UseComposite=true\n", {true, false, true}, {off, on});
        row("nothing", "UseComposite=true\n", {true, false, false}, {});
        row("switched on with the file", "UseComposite=false\n", {true, true, true}, {on});
        row("switched off with the file", "UseComposite=true\n", {false, true, true}, {off});
        row("another text for true", "UseComposite=True\n", {true, true, true}, {});
        row("no text at all", "", {true, true, true}, {on});
    }
    void runningManagerIsRestartedOnlyForAChangedFile()
    {
        QFETCH(QByteArray, use);
        QFETCH(CompositeState, state);
        for (const QString &manager : {ownManager, compton}) {
            Session session(manager, true, use);
            session.home.write(kompmgrFile, "; mine\n[kompmgr]\nOther=\"a, b\"\n\n[more]\nkey=1\n");
            session.home.write(comptonFile, "# mine\nshadow = false;\nenable-transparency = false;\n");
            session.load();
            session.writeTheme(use);
            WmListener windowManager;
            session.save(state);
            QTEST(windowManager.take(), "commands");
            const QByteArray changedUse = state.managerOn ? "UseComposite=true\n" : "UseComposite=false\n";
            QCOMPARE(session.themeLines(), state.managerOn == use.contains("rue") ? use : changedUse);
            QCOMPARE(session.backups().size(), state.transparency || state.shadow ? 1 : 0);
            const CompositeState reloaded = session.load();
            QCOMPARE(reloaded.transparency, state.transparency);
            QCOMPARE(reloaded.shadow, state.shadow);
            QVERIFY(session.home.read(kompmgrFile).contains("Other=\"a, b\""));
            QVERIFY(session.home.read(comptonFile).startsWith("# mine\n"));
        }
    }

    void comptonFileIsResolvedOnceAndMissingValuesAreWritten()
    {
        Session session(compton, true, {});
        const QString old = session.home.write(QStringLiteral(".compton.conf"), {});
        const CompositeState state = session.load({false, true, true});
        QVERIFY(state.managerOn && !state.transparency && !state.shadow);
        session.home.write(comptonFile, "shadow = true;\n");
        QVERIFY(!session.load().shadow);
        QCOMPARE(session.comptonConfigPath, old);
        session.save(state);
        QCOMPARE(session.home.read(QStringLiteral(".compton.conf")),
                 QByteArray("enable-transparency = false;\nshadow = false;\n"));
    }

    void configHomeThatIsNoneCountsAsUnset()
    {
        for (const char *value : {"", "relative"}) {
            Session session(compton, true, {});
            const ScopedEnvironment configHome("XDG_CONFIG_HOME", value);
            session.load();
            QCOMPARE(session.comptonConfigPath, session.home.path(comptonFile));
            QCOMPARE(session.home.read(comptonFile), QByteArray(""));
        }
    }

    void unreadableComptonFileIsToldAndLeft()
    {
        Session session(compton, false, {});
        const QByteArray path = QFile::encodeName(session.home.write(comptonFile, "shadow = "));
        const QByteArray message = "qaz-admin-theme: Can't read " + path + '\n';
        StandardError messages;
        const CompositeState state = session.load({false, true, true});
        QCOMPARE(messages.take(), message);
        QVERIFY(state.transparency && state.shadow);
        session.save({});
        QCOMPARE(messages.take(), message);
        QCOMPARE(session.home.read(comptonFile), QByteArray("shadow = "));
    }

    void oddFilesAreNeitherReadNorReplaced()
    {
        for (const QString &manager : {ownManager, compton}) {
            const QString file = manager == compton ? comptonFile : kompmgrFile;
            for (const bool isFifo : {true, false}) {
                Session session(manager, true, "UseComposite=true\n");
                const QByteArray path = QFile::encodeName(session.home.path(file));
                QCOMPARE(isFifo ? ::mkfifo(path.constData(), 0600) : ::mkdir(path.constData(), 0700), 0);
                StandardError messages;
                QVERIFY(session.load().managerOn);
                session.save({true, true, true});
                struct stat status = {};
                QCOMPARE(::stat(path.constData(), &status), 0);
                QVERIFY(isFifo ? S_ISFIFO(status.st_mode) : S_ISDIR(status.st_mode));
                const QByteArray lines = messages.take();
                QVERIFY2(lines.contains("qaz-admin-theme: Can't ") && lines.contains(path),
                         lines.constData());
            }
        }
    }

    void comptonPlacesAreTriedInOrder()
    {
        struct Case {
            const char *configHome;
            const char *files; // each holds its own name
            const char *resolved;
            const char *content; // nullptr: there is no file
        };
        const Case cases[] = {
            {"xdg", "xdg/compton.conf .config/compton.conf .compton.conf etc", "xdg/compton.conf",
             "xdg/compton.conf"},
            {"", ".config/compton.conf .compton.conf etc", ".config/compton.conf", ".config/compton.conf"},
            {"xdg", ".config/compton.conf .compton.conf etc", ".compton.conf", ".compton.conf"},
            {"xdg", ".config/x etc", ".config/compton.conf", "etc"},
            {"xdg", ".config/compton.conf", ".config/compton.conf", ".config/compton.conf"}, // not emptied
            {"xdg", ".config/x", ".config/compton.conf", ""},
            {"", "etc", ".config/compton.conf", nullptr},
            {"", "", ".config/compton.conf", nullptr}};
        for (const Case &one : cases) {
            const TemporaryHome home;
            for (const QByteArray &file : QByteArray(one.files).split(' ')) {
                if (!file.isEmpty())
                    home.write(QString::fromLatin1(file), file);
            }
            StandardError messages;
            const QString configHome = home.path(QLatin1String(*one.configHome ? one.configHome : ".config"));
            const QString path = resolveComptonConfig(
                {configHome, home.path(), home.path(QStringLiteral("etc"))});
            QCOMPARE(path, home.path(QLatin1String(one.resolved)));
            QCOMPARE(home.read(QLatin1String(one.resolved)), QByteArray(one.content));
            QCOMPARE(messages.take(), !one.content && !*one.files
                                          ? "qaz-admin-theme: Can't create " + QFile::encodeName(path) + '\n'
                                          : QByteArray());
        }
    }
};

QTEST_MAIN(TestCompositeSettings)
#include "tst_compositesettings.moc"
