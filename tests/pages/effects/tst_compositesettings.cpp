#include "pages/effects/compositesettings.h"

#include "pages/effects/comptonconfig.h"
#include "platform/qazsettings.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"
#include "tests/support/wmlistener.h"

namespace {

const QString kompmgrFile = ".config/qaz/kompmgrrc"_s;
const QString comptonFile = ".config/compton.conf"_s;

/// A session whose manager is installed in PATH under a name that no other test uses.
class Session
{
public:
    Session(const QString &manager, bool runs, const QByteArray &lines)
        : m_manager(manager.toUtf8())
    {
        home.makeDirectory(".config/qaz"_s);
        const QString program = m_programs.directory() + u'/' + manager;
        QFile::copy("/bin/sleep"_s, program);
        if (runs)
            m_process.start(program, {"3600"_s});
        m_process.waitForStarted();
        writeTheme(lines);
    }
    ~Session()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    void writeTheme(const QByteArray &lines) const
    {
        home.write("t"_s, "CompositeManager=" + m_manager + '\n' + lines);
    }
    /// The lines of the theme file below the manager's own.
    QByteArray themeLines() const
    {
        const QByteArray text = home.read("t"_s);
        return text.mid(text.indexOf('\n') + 1);
    }
    CompositeState load(const CompositeState &shown = {})
    {
        return loadComposite(openStore().get(), shown, &comptonConfigPath);
    }
    void save(const CompositeState &state) { saveComposite(openStore().get(), state, comptonConfigPath); }

    const TemporaryHome home;
    QString comptonConfigPath;

private:
    /// The store writes the file when it goes.
    std::unique_ptr<QazSettings> openStore() const
    {
        auto store = std::make_unique<QazSettings>(home.path("t"_s));
        store->sync(true);
        return store;
    }

    FakePrograms m_programs{FakePrograms::Path::Instead};
    QByteArray m_manager;
    QProcess m_process;
};

// Another run of this test on the same machine must not pass for this one's managers.
const QString ownManager = "qaz-kompmgr-%1"_s.arg(QCoreApplication::applicationPid());
const QString compton = "compton-%1"_s.arg(QCoreApplication::applicationPid());
const QString off = "QAZWM_UPDATE_VAL UseComposite false"_s;
const QString on = "QAZWM_UPDATE_VAL UseComposite true"_s;

constexpr int million = 1024 * 1024;

/// Sets both values in the file; returns what went wrong.
QString update(const QString &path, bool transparency, bool shadow)
{
    QString error;
    return updateComptonFile(path, transparency, shadow, &error) ? QString() : error;
}

/// The transparency and the shadow of the file: "true -" for a missing shadow.
QByteArray stored(const QString &path)
{
    const std::optional<ComptonValues> values = readComptonFile(path);
    const auto text = [](std::optional<bool> value) { return !value ? "-" : *value ? "true" : "false"; };
    return values ? QByteArray(text(values->transparency)) + ' ' + text(values->shadow) : "unreadable";
}

} // namespace

class TestCompositeSettings : public QObject
{
    Q_OBJECT
private slots:
    void boxShowsWhetherTheManagerRuns()
    {
        const std::tuple<bool, QByteArray, QByteArray> rows[] = {
            {true, "UseComposite=True\n", "UseComposite=True\n"},
            {true, "", ""},
            {true, "UseComposite=TRUE\n", "UseComposite=true\n"},
            {false, "UseComposite=true\n", "UseComposite=false\n"},
            {false, "", "UseComposite=false\n"},
            {false, "UseComposite=no\n", "UseComposite=no\n"}};
        WmListener windowManager;
        for (const auto &[runs, stored, after] : rows) {
            Session session(ownManager, runs, stored);
            QCOMPARE(session.load().managerOn, runs);
            QCOMPARE(session.themeLines(), after);
        }
        QCOMPARE(windowManager.take(), QStringList());
    }

    void managerThatIsNotFoundIsSwitchedOff()
    {
        Session session(ownManager, true, {});
        WmListener windowManager;
        session.home.write("t"_s, "CompositeManager=no-%s-compton\nUseComposite=true\n");
        const QByteArray kompmgr = "[kompmgr]\nIgnoreTransparency=false\n";
        session.home.write(kompmgrFile, kompmgr);
        StandardError messages;
        const CompositeState state = session.load({true, false, true});
        QCOMPARE(messages.take(),
                 QByteArray("qaz-admin-wm: can't find CompositeManager='no-%s-compton' in PATH\n"));
        QVERIFY(!state.managerOn && !state.transparency && state.shadow);
        QCOMPARE(session.themeLines(), QByteArray("UseComposite=false\n"));
        session.home.write("t"_s, "CompositeManager=no-%s-compton\nUseComposite=true\n");
        session.save({true, true, true}); // which of the files would be edited is not known
        QCOMPARE(session.themeLines(), QByteArray("UseComposite=true\n"));
        QVERIFY(session.comptonConfigPath.isEmpty() && !session.home.exists(comptonFile));

        // A save to a theme that still says on tells the window manager; kompmgrrc is overwritten, but kept.
        session.home.write("t"_s, "CompositeManager=gone\nUseComposite=true\n");
        session.save({});
        QCOMPARE(session.themeLines(), QByteArray("UseComposite=false\n"));
        QCOMPARE(windowManager.take(), QStringList{off});
        QCOMPARE(session.home.read(kompmgrFile), QByteArray("[kompmgr]\nIgnoreTransparency=true\n"));
        QCOMPARE(session.home.backups(), QByteArrayList{kompmgr});
    }

    void kompmgrFileIsReadAsNegations()
    {
        const std::pair<QByteArray, bool> files[] = {
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

    void runningManagerIsRestartedOnlyForAChangedFile()
    {
        const std::tuple<QByteArray, CompositeState, QStringList, const char *> rows[] = {
            {"true", {true, false, true}, {off, on}, "true"}, {"true", {true, false, false}, {}, "true"},
            {"false", {true, true, false}, {on}, "true"},     {"true", {false, true, true}, {off}, "false"},
            {"True", {true, true, true}, {}, "True"},         {"", {true, true, true}, {on}, "true"}};
        const auto own = [](const CompositeState &state) {
            return QByteArray("; mine\n[kompmgr]\nOther=\"a, b\"\n")
                   + (state.shadow ? "Compmode=CompClientShadows\n" : "")
                   + (state.transparency ? "IgnoreTransparency=false\n" : "") + "\n[more]\nkey=1\n";
        };
        const auto theirs = [](const CompositeState &state) {
            return QByteArray("# mine\nshadow = ") + (state.shadow ? "true" : "false")
                   + ";\nenable-transparency = " + (state.transparency ? "true" : "false") + ";\n";
        };
        for (const auto &[use, state, commands, usedThen] : rows) {
            for (const QString &manager : {ownManager, compton}) {
                const QByteArray line = use.isEmpty() ? QByteArray() : "UseComposite=" + use + '\n';
                Session session(manager, true, line);
                session.home.write(kompmgrFile, own({}));
                session.home.write(comptonFile, theirs({}));
                session.load();
                session.writeTheme(line);
                WmListener windowManager;
                session.save(state);
                QCOMPARE(windowManager.take(), commands);
                QCOMPARE(session.themeLines(), QByteArray("UseComposite=") + usedThen + '\n');
                QCOMPARE(session.home.backups().size(), state.transparency || state.shadow ? 1 : 0);
                QCOMPARE(session.home.read(kompmgrFile),
                         own(manager == ownManager ? state : CompositeState{}));
                QCOMPARE(session.home.read(comptonFile),
                         theirs(manager == compton ? state : CompositeState{}));
            }
        }
    }

    void comptonFileIsResolvedOnceAndMissingValuesAreWritten()
    {
        Session session(compton, true, {});
        const QString old = session.home.write(".compton.conf"_s, {});
        const CompositeState state = session.load({false, true, true});
        QVERIFY(state.managerOn && !state.transparency && !state.shadow);
        session.home.write(comptonFile, "shadow = true;\n");
        QVERIFY(!session.load().shadow);
        QCOMPARE(session.comptonConfigPath, old);
        session.save(state);
        QCOMPARE(session.home.read(".compton.conf"_s),
                 QByteArray("enable-transparency = false;\nshadow = false;\n"));
    }

    void whatIsNoReadableFileIsToldAndLeft()
    {
        Session session(compton, false, {});
        const QString path = session.home.makeFifo(comptonFile);
        StandardError messages;
        const CompositeState state = session.load({false, true, true});
        QVERIFY(state.transparency && state.shadow);
        session.writeTheme("UseComposite=true\n");
        WmListener windowManager;
        session.save({true, false, false});
        QCOMPARE(windowManager.take(), QStringList());
        const QByteArray message = "qaz-admin-theme: Can't read " + QFile::encodeName(path) + '\n';
        QCOMPARE(messages.take(), message + message);
        QVERIFY(QFileInfo::exists(path) && !QFileInfo(path).isFile());
    }

    void comptonPlacesAreTriedInOrder()
    {
        const QString &inConfig = comptonFile;
        const QString dotted = ".compton.conf"_s;
        // The configuration directory, the files, each of which holds its own name, the path and its content.
        const std::tuple<QString, QStringList, QString, const char *> rows[] = {
            {"xdg"_s, {"xdg/compton.conf"_s, inConfig, dotted}, "xdg/compton.conf"_s, "xdg/compton.conf"},
            {".config"_s, {inConfig, dotted, "etc"_s}, inConfig, ".config/compton.conf"},
            {"xdg"_s, {inConfig, dotted, "etc"_s}, dotted, ".compton.conf"},
            {"xdg"_s, {".config/x"_s, "etc"_s}, inConfig, "etc"},
            {"xdg"_s, {inConfig}, inConfig, ".config/compton.conf"}, // not emptied
            {"xdg"_s, {".config/x"_s}, inConfig, ""},
            {"xdg"_s, {inConfig + "/x"_s}, inConfig, nullptr}, // no file
            {".config"_s, {"etc"_s}, inConfig, nullptr},
            {".config"_s, {}, inConfig, nullptr}};
        for (const auto &[configHome, files, resolved, content] : rows) {
            const TemporaryHome home;
            for (const QString &file : files)
                home.write(file, file.toLatin1());
            StandardError messages;
            QCOMPARE(resolveComptonConfig({home.path(configHome), home.path(), home.path("etc"_s)}),
                     home.path(resolved));
            QCOMPARE(home.read(resolved), QByteArray(content));
            QCOMPARE(messages.take(),
                     content || files == QStringList{"etc"_s}
                         ? QByteArray()
                         : "qaz-admin-theme: Can't create " + QFile::encodeName(home.path(resolved)) + '\n');
        }
    }

    void onlyTheTwoValuesChange()
    {
        // Before, and with transparency on, shadows off.
        const QByteArray others
            = "shadow-radius = 7;no-shadow = true;w : { shadow = true; };l = ( { shadow = true; } );"
              "s = \"\\\"shadow = true;\" \"shadow = 1\";\n";
        const QByteArray numbers
            = "a = 0x1F; b = 10L; c = 1.23456789012345678; d = 1e-300; e = .5; f = 99999999999;\r\n";
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"", "enable-transparency = true;\nshadow = false;\n"},
            {"# shadow = true;\nshadow = TRUE; // shadow = true;\n/* shadow\n= 1; */ "
             "enable-transparency: false;\n",
             "# shadow = true;\nshadow = false; // shadow = true;\n/* shadow\n= 1; */ "
             "enable-transparency: true;\n"},
            {"/**/#\nshadow\r\f\t=true s=\"\"enable-transparency=false x=1",
             "/**/#\nshadow\r\f\t=false s=\"\"enable-transparency=true x=1"},
            {others, others + "enable-transparency = true;\nshadow = false;\n"},
            {numbers, numbers + "enable-transparency = true;\r\nshadow = false;\r\n"},
            {"shadow = 0;\nenable-transparency = { a = [ 1, 2 ]; };\nz = \"\xfc\";",
             "shadow = false;\nenable-transparency = true;\nz = \"\xfc\";"},
            {"shadow = \"n\" \"o\";enable-transparency=\"true\"", "shadow = false;enable-transparency=true"},
            {"shadow = 1; a = 1.5; /* x", "a = 1.5;\nenable-transparency = true;\nshadow = false;\n"}};
        for (const auto &[before, after] : rows) {
            const TemporaryHome home;
            const QString path = home.path("link"_s);
            QVERIFY(QFile::link(home.write(comptonFile, before), path));
            QCOMPARE(update(path, true, false), QString());
            QCOMPARE(home.read(comptonFile), after);
            QCOMPARE(stored(path), QByteArray("true false"));
            const QString whole = home.fingerprint();
            QCOMPARE(update(path, true, false), QString());
            QCOMPARE(home.fingerprint(), whole);
        }
    }

    void includesAreReadAndKept()
    {
        const TemporaryHome home;
        const QByteArray absolute = QFile::encodeName(home.write("else\\where"_s, "b = 2;"));
        const QByteArray included = "shadow = true; # theirs\nratio=1.23456789012;other = 0xFF;\n";
        home.write(".config/a.conf"_s, "@include \"deeper.conf\"\na = 1;");
        home.write(".config/deeper.conf"_s, included);
        const QByteArray before = "# mine\n@include \"a.conf\"\n# @include \"missing\"\n";
        const QByteArray after = "  @include \"" + QByteArray(absolute).replace('\\', "\\\\") + "\"\n";
        const QString path = home.write(comptonFile, before + after);
        QCOMPARE(stored(path), QByteArray("- true"));
        QCOMPARE(update(path, false, true), QString());
        QCOMPARE(home.read(comptonFile), before + after + "enable-transparency = false;\n");

        // A value of an included file is set in the file itself.
        home.write(".config/a.conf"_s, included);
        QCOMPARE(update(path, true, false), QString());
        QCOMPARE(home.read(comptonFile),
                 QByteArray("# mine\nshadow = false; # theirs\nratio=1.23456789012;other = 0xFF;\n\n"
                            "# @include \"missing\"\n  b = 2;\n\nenable-transparency = true;\n"));
        QCOMPARE(home.read(".config/a.conf"_s), included);
    }

    void includesAreLimited()
    {
        const TemporaryHome home;
        home.write("11"_s, {});
        for (int i = 0; i < 11; ++i)
            home.write(QString::number(i), "@include \"" + QByteArray::number(i + 1) + "\"\n");
        QCOMPARE(stored(home.path("1"_s)) + ' ' + stored(home.path("0"_s)), QByteArray("- - unreadable"));
        home.write("half"_s, QByteArray(million / 2, ' '));
        home.write("byte"_s, "\n");
        const QByteArray twice = "@include \"half\"\n@include \"half\"\n";
        QCOMPARE(stored(home.write("whole"_s, twice)), QByteArray("- -"));
        QCOMPARE(stored(home.write("more"_s, twice + "@include \"byte\"\n")), QByteArray("unreadable"));
        QCOMPARE(stored(home.write("large"_s, QByteArray(million, ' '))), QByteArray("- -"));
    }

    void whatIsNoConfigurationIsLeftAlone()
    {
        const QByteArray contents[] = {"a : {",
                                       "a = \"b\\",
                                       QByteArray("shadow = true;\0", 15),
                                       "a = 1; a = 2;",
                                       "a = " + QByteArray(200000, '('),
                                       "a = \"" + QByteArray(million - 5, 'x') + '"',
                                       "@include \"missing.conf\"\n",
                                       "@include \".\"\n",
                                       "@include \"/dev/zero\"\n",
                                       "@include \"compton.conf\"\n@include \"compton.conf\"\n"};
        for (const QByteArray &content : contents) {
            const TemporaryHome home;
            const QString path = home.write(comptonFile, content);
            const QString before = home.fingerprint();
            QVERIFY2(stored(path) == "unreadable", content.left(40).constData());
            QCOMPARE(update(path, true, true),
                     content.size() > million ? "File too large"_s : "No configuration"_s);
            QCOMPARE(home.fingerprint(), before);
        }
    }
};

QTEST_MAIN(TestCompositeSettings)
#include "tst_compositesettings.moc"
