#include "pages/effects/compositesettings.h"

#include "pages/effects/comptonconfig.h"
#include "pages/effects/effectpage.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/rows.h"
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
    QString lines() const { return QString::fromLatin1(content().mid(m_start.size())); }
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
        // What is shown, stored, and stored then.
        WmListener windowManager;
        for (const QStringList &row : rowsOf("pages/effects/running.json"_s)) {
            const Manager manager(ownManager, row[1].startsWith(u'+'));
            const CompositePage file(ownManager, row[2].toLatin1());
            QCOMPARE(file.composite() + file.lines(), row[1] + row[3]);
        }
        QCOMPARE(windowManager.take(), QStringList());
    }

    void managerThatIsNotFoundIsSwitchedOff()
    {
        StandardError messages;
        CompositePage file("no-%s-compton"_s, "UseComposite=true\n");
        QCOMPARE(messages.take(),
                 QByteArray("qaz-admin-wm: can't find CompositeManager='no-%s-compton' in PATH\n"));
        QCOMPARE(file.lines(), "UseComposite=false\n"_s);
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
        const auto own = [](const QString &state) {
            return QByteArray("; mine\n[kompmgr]\nOther=\"a, b\"\n")
                   + (state.at(2) == u'+' ? "Compmode=CompClientShadows\n" : "")
                   + (state.at(1) == u'+' ? "IgnoreTransparency=false\n" : "") + "\n[more]\nkey=1\n";
        };
        const auto theirs = [](const QString &state) {
            return QByteArray("# mine\nshadow = ") + (state.at(2) == u'+' ? "true" : "false")
                   + ";\nenable-transparency = " + (state.at(1) == u'+' ? "true" : "false") + ";\n";
        };
        // What is stored and chosen, the commands, and what is stored then.
        for (const QStringList &row : rowsOf("pages/effects/restarts.json"_s)) {
            for (const QString &name : {ownManager, compton}) {
                const Manager manager(name, true);
                CompositePage file(name, {});
                file.home.write(kompmgrFile, own("---"_s));
                file.home.write(comptonFile, theirs("---"_s));
                file.setComposite(row[2]);
                file.writeLines(row[1].toLatin1());
                const QString commands = file.save();
                QCOMPARE(commands + file.lines(), row[3] + row[4]);
                QCOMPARE(file.home.backups().size(), row[2].endsWith("--"_s) ? 0 : 1);
                QCOMPARE(file.home.read(kompmgrFile), own(name == ownManager ? row[2] : "---"_s));
                QCOMPARE(file.home.read(comptonFile), theirs(name == compton ? row[2] : "---"_s));
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
        // The configuration directory, the files, each of which holds its own name, the path, its content and what is
        // told.
        for (QStringList row : rowsOf("pages/effects/places.json"_s)) {
            const TemporaryHome home;
            for (const QString &file : row[2].split(u' '))
                home.write(file, file.toLatin1());
            StandardError messages;
            QCOMPARE(resolveComptonConfig({home.path(row[1]), home.path(), home.path("etc"_s)}),
                     home.path(row[3]));
            QCOMPARE(home.exists(row[3]) ? home.read(row[3]) : "none", row[4].toLatin1());
            QCOMPARE(QString::fromLocal8Bit(messages.take()), row[5].replace("HOME"_s, home.path()));
        }
    }

    void onlyTheTwoValuesChange()
    {
        // Before, why it is refused, with transparency on and shadows off, and what is read of it else.
        for (QStringList row : rowsOf("pages/effects/compton.json"_s)) {
            row.replaceInStrings("DEEP"_s, QString(200000, u'('));
            row.replaceInStrings("LONG"_s, QString(million - 5, u'x'));
            const QByteArray before = row[1].toLatin1();
            const TemporaryHome home;
            const QString path = home.path(".config/link"_s);
            QVERIFY(QFile::link(home.write(comptonFile, before), path));
            QCOMPARE(update(path, true, false), row[2]);
            QCOMPARE(home.read(comptonFile), row[3].isNull() ? before : row[3].toLatin1());
            QCOMPARE(stored(path), row.value(4, "true false"_s).toLatin1());
            const QString whole = home.fingerprint();
            QCOMPARE(update(path, true, false), row[2]);
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
        QCOMPARE(home.read(comptonFile), "enable-transparency = false;\n" + before + after);

        // A value of an included file is set in the file itself.
        home.write(".config/a.conf"_s, included);
        QCOMPARE(update(path, true, false), QString());
        QCOMPARE(home.read(comptonFile),
                 QByteArray("enable-transparency = true;\n# mine\nshadow = false; # theirs\n"
                            "ratio=1.23456789012;other = 0xFF;\n\n# @include \"missing\"\n  b = 2;\n\n"));
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
};

QTEST_MAIN(TestCompositeSettings)
#include "tst_compositesettings.moc"
