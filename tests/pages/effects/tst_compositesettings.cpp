#include "pages/effects/compositesettings.h"

#include "pages/effects/comptonconfig.h"
#include "pages/effects/effectpage.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/standarderror.h"

namespace {

const QString comptonFile = ".config/compton.conf"_s;
// Another run of this test on the same machine must not pass for this one's managers.
const QString ownManager = "qaz-kompmgr-%1"_s.arg(QCoreApplication::applicationPid());
const QString compton = "compton-%1"_s.arg(QCoreApplication::applicationPid());
const QString kompmgrFile = ".config/qaz/kompmgrrc"_s;

/// A compositing manager that is installed in PATH.
struct Manager {
    Manager(const QString &name, bool runs)
    {
        const QString program = programs.directory() + u'/' + name;
        QFile::copy("/bin/sleep"_s, program);
        if (runs)
            process.start(program, {"3600"_s});
        process.waitForStarted();
    }
    ~Manager()
    {
        process.kill();
        process.waitForFinished();
    }

    const FakePrograms programs{FakePrograms::Path::Instead};
    QProcess process;
};

/// The page over a theme file that names a manager, and has all else that is saved.
struct CompositePage : PageOverFile<EffectPage> {
    CompositePage(const QString &manager, const QByteArray &lines)
        : m_start("CompositeManager=" + manager.toLatin1() + "\nArrangeWindowSpeed=0\nGradWindowMapSpeed=0\n")
    {
        home.makeDirectory(".config/qaz"_s);
        loadLines(lines);
    }

    void writeLines(const QByteArray &lines) const { home.write("t"_s, m_start + lines); }
    void loadLines(const QByteArray &lines) { load(m_start + lines); }
    QByteArray lines() const { return content().mid(m_start.size()); }
    /// Whether the manager is on, transparency and shadow: "+-+".
    QString composite() const
    {
        QString state;
        for (const char *name : compositeBoxes)
            state += find<QWidget>(name)->property("checked").toBool() ? u'+' : u'-';
        return state;
    }
    void setComposite(const QString &state) const
    {
        for (int i = 0; i < 3; ++i)
            find<QWidget>(compositeBoxes[i])->setProperty("checked", state.at(i) == u'+');
    }

    static constexpr const char *compositeBoxes[] = {"compositeGroupBox", "transparencyCheckBox",
                                                     "shadowCheckBox"};
    const QByteArray m_start;
};

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
            const Manager manager(ownManager, runs);
            const CompositePage file(ownManager, stored);
            QCOMPARE(file.composite(), runs ? "+--"_s : "---"_s);
            QCOMPARE(file.lines(), after);
        }
        QCOMPARE(windowManager.take(), QStringList());
    }

    void managerThatIsNotFoundIsSwitchedOff()
    {
        StandardError messages;
        CompositePage file("no-%s-compton"_s, "UseComposite=true\n");
        QCOMPARE(messages.take(),
                 QByteArray("qaz-admin-wm: can't find CompositeManager='no-%s-compton' in PATH\n"));
        QCOMPARE(file.lines(), QByteArray("UseComposite=false\n"));
        file.setComposite("+-+"_s);
        file.loadLines("UseComposite=true\n");
        QCOMPARE(file.composite(), "--+"_s);
        // Which compton file would be edited is not known.
        file.setComposite("+++"_s);
        file.writeLines("UseComposite=true\n");
        QCOMPARE(file.save(), QString());
        QVERIFY(!file.home.exists(comptonFile));

        // A save to a theme that still says on tells the window manager; kompmgrrc is overwritten, but kept.
        const QByteArray kompmgr = "[kompmgr]\nIgnoreTransparency=false\n";
        file.home.write(kompmgrFile, kompmgr);
        file.home.write(
            "t"_s, "CompositeManager=gone\nArrangeWindowSpeed=0\nGradWindowMapSpeed=0\nUseComposite=true\n");
        file.setComposite("---"_s);
        QCOMPARE(file.save(), "UseComposite false"_s);
        QCOMPARE(file.home.read(kompmgrFile), QByteArray("[kompmgr]\nIgnoreTransparency=true\n"));
        QCOMPARE(file.home.backups(), QByteArrayList{kompmgr});
    }

    void kompmgrFileIsReadAsNegations()
    {
        const std::pair<QByteArray, QString> rows[] = {
            {"[other]\nCompmode=CompClientShadows\n", "---"_s},
            {"[kompmgr]\nIgnoreTransparency=TRUE\nCompmode=compsimple\n", "-++"_s},
            {"[kompmgr]\nIgnoreTransparency=untrue\nCompmode=CompSimple2\n", "---"_s}};
        const Manager manager(ownManager, false);
        for (const auto &[content, state] : rows) {
            CompositePage file(ownManager, {});
            file.home.write(kompmgrFile, content);
            file.setComposite(state == "---"_s ? "+++"_s : "+--"_s);
            file.loadLines("UseComposite=no\n");
            QCOMPARE(file.composite(), state);
            // What was loaded is saved without a trace, whatever its text.
            const QString before = file.home.fingerprint();
            QCOMPARE(file.save(), QString());
            QCOMPARE(file.home.fingerprint(), before);
        }
    }

    void runningManagerIsRestartedOnlyForAChangedFile()
    {
        const QString restart = "UseComposite false|UseComposite true"_s;
        const std::tuple<QByteArray, QString, QString, const char *> rows[] = {
            {"true", "+-+"_s, restart, "true"},
            {"true", "+--"_s, {}, "true"},
            {"false", "++-"_s, "UseComposite true"_s, "true"},
            {"true", "-++"_s, "UseComposite false"_s, "false"},
            {"True", "+++"_s, {}, "True"},
            {"", "+++"_s, "UseComposite true"_s, "true"}};
        const auto own = [](const QString &state) {
            return QByteArray("; mine\n[kompmgr]\nOther=\"a, b\"\n")
                   + (state.at(2) == u'+' ? "Compmode=CompClientShadows\n" : "")
                   + (state.at(1) == u'+' ? "IgnoreTransparency=false\n" : "") + "\n[more]\nkey=1\n";
        };
        const auto theirs = [](const QString &state) {
            return QByteArray("# mine\nshadow = ") + (state.at(2) == u'+' ? "true" : "false")
                   + ";\nenable-transparency = " + (state.at(1) == u'+' ? "true" : "false") + ";\n";
        };
        for (const auto &[use, state, commands, usedThen] : rows) {
            for (const QString &name : {ownManager, compton}) {
                const Manager manager(name, true);
                const QByteArray line = use.isEmpty() ? QByteArray() : "UseComposite=" + use + '\n';
                CompositePage file(name, {});
                file.home.write(kompmgrFile, own("---"_s));
                file.home.write(comptonFile, theirs("---"_s));
                file.setComposite(state);
                file.writeLines(line);
                QCOMPARE(file.save(), commands);
                QCOMPARE(file.lines(), QByteArray("UseComposite=") + usedThen + '\n');
                QCOMPARE(file.home.backups().size(), state.endsWith("--"_s) ? 0 : 1);
                QCOMPARE(file.home.read(kompmgrFile), own(name == ownManager ? state : "---"_s));
                QCOMPARE(file.home.read(comptonFile), theirs(name == compton ? state : "---"_s));
            }
        }
    }

    void comptonFileIsResolvedOnceAndMissingValuesAreWritten()
    {
        const Manager manager(compton, true);
        CompositePage file(QString(), {});
        file.home.write(".compton.conf"_s, {});
        file.setComposite("-++"_s);
        file.load("CompositeManager=" + compton.toLatin1() + '\n');
        QCOMPARE(file.composite(), "+--"_s);
        file.home.write(comptonFile, "shadow = true;\n");
        file.load(file.content());
        QCOMPARE(file.composite(), "+--"_s);
        file.save();
        QCOMPARE(file.home.read(".compton.conf"_s),
                 QByteArray("enable-transparency = false;\nshadow = false;\n"));

        // What is no file any more is told and left.
        QVERIFY(QFile::remove(file.home.path(".compton.conf"_s)));
        const QString path = file.home.makeFifo(".compton.conf"_s);
        StandardError messages;
        file.setComposite("-++"_s);
        file.load(file.content());
        QCOMPARE(file.composite(), "+++"_s);
        QCOMPARE(file.save(), QString());
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
