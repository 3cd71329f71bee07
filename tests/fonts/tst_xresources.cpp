#include "fonts/xresources.h"

#include "freedesktop/xresources.h"
#include "settings/renderingstore.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QProcess>
#include <QSettings>
#include <QtTest>

namespace {

QByteArray run(const char *program, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(QLatin1String(program), arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// The server's resources, one a line with a single blank after the colon.
QByteArray serverResources()
{
    return run("xrdb", {"-query"_s}).replace(":\t", ": ");
}

void loadServer(const QByteArray &resources)
{
    run("xrdb", {"-load"_s, "-nocpp"_s}, resources);
}

} // namespace

class TestXResources : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setOrganizationName("qaz"_s); }

    void storedChoices()
    {
        const QByteArray longName(216, 'x'); // up to the 255th byte of the command
        const struct {
            QByteArray stored;
            QByteArray lines;
            QByteArray command;
        } rows[] = {
            {"", "", "0 unknown rgb full\n"},
            {"forceFontDPI=120\nXftSubPixel=vrgb\nXftHintStyle=hintfull\nXftAntialias=true\n"
             "dontChangeAASettings=false\n",
             "Xft.antialias: 1\nXft.hinting: 1\nXft.hintstyle: hintfull\nXft.rgba: vrgb\nXft.dpi: 120\n",
             "120 true vrgb hintfull\n"},
            {"XftAntialias=false\nXftHintStyle=hintnone\nXftSubPixel=none\nforceFontDPI=0\n"
             "dontChangeAASettings=false\n",
             "Xft.antialias: 0\nXft.hinting: 0\nXft.hintstyle: hintnone\nXft.rgba: none\n",
             "0 false none hintnone\n"},
            {"XftAntialias=true\ndontChangeAASettings=true\n", "Xft.antialias: 1\n",
             "0 unknown rgb full\n"}, // the system decides
            {"dontChangeAASettings=false\n", "", "0 false rgb full\n"},
            {"XftHintStyle=\nXftSubPixel=\n", "Xft.hinting: -1\n", "0 unknown  \n"},
            {"XftSubPixel=" + longName + "y", "Xft.rgba: " + longName + "y\n", "0 unknown " + longName}};
        const TemporaryHome home;
        for (const auto &row : rows) {
            // A file of its own: one of the same size and time would be taken for the last one.
            const QString store = home.write("store%1"_s.arg(&row - rows), "[General]\n" + row.stored);
            QCOMPARE(xftResourceLines(store).toLatin1(), row.lines);
            QCOMPARE(xftSettingsCommand(store), "QAZWM_UPDATE_VAL XftSettings " + row.command);
        }
    }

    void dpiOfAResource()
    {
        QCOMPARE(forcedDpi(0, "120"), 0); // not forced, whatever the server has
        QCOMPARE(forcedDpi(120, "119.9"), 119);
        QCOMPARE(forcedDpi(120, "96"), 0);
        QCOMPARE(forcedDpi(120, "96.7"), 0);
        QCOMPARE(forcedDpi(96, {}), 96);
        QCOMPARE(forcedDpi(120, "high"), 120);
        QCOMPARE(forcedDpi(120, "72dpi"), 72);
        QCOMPARE(forcedDpi(120, "1e999"), 120);
    }

    void oneResourceChanges()
    {
        const struct {
            QByteArray before;
            QByteArray line; // null: removed
            QByteArray after;
        } rows[] = {
            {"! mine\nXft.dpi: 96\nx: 1\n", "Xft.dpi: 120", "! mine\nXft.dpi: 120\nx: 1\n"},
            {"x: 1", "Xft.dpi: 120", "x: 1\nXft.dpi: 120\n"}, // an open last line
            {"a: 1\nXft.dpi: 96", "Xft.dpi: 7", "a: 1\nXft.dpi: 7"},
            {"a: 1\nXft.dpi: 96\nb: 2", {}, "a: 1\nb: 2"},
            {" Xft.dpi :\t96\n", "Xft.dpi: 120", "Xft.dpi: 120\n"},
            {"Xft.dpix: 1\n!Xft.dpi: 2\n", "Xft.dpi: 3", "Xft.dpix: 1\n!Xft.dpi: 2\nXft.dpi: 3\n"},
            {"Xft.dpi: 1\na: 1\nXft.dpi: 2\nb: 2\n", "Xft.dpi: 3",
             "a: 1\nXft.dpi: 3\nb: 2\n"}, // the last one counts
            {"Xft.dpi: \\\n 96\na: \\\nXft.dpi: text\n", {}, "a: \\\nXft.dpi: text\n"},
            {"! mine\\\nXft.dpi: 96\n", "Xft.dpi: 7",
             "! mine\\\nXft.dpi: 96\nXft.dpi: 7\n"},      // still the comment's
            {"a: x\\\\\nXft.dpi: 1\n", {}, "a: x\\\\\n"}, // the backslash is its value
            {"a: 1\\\n", "Xft.dpi: 7", "a: 1\\\n\nXft.dpi: 7\n"},
            {"a: \xff\r\nXft.dpi: 96\r\nb: 1\r\n", "Xft.dpi: 7", "a: \xff\r\nXft.dpi: 7\r\nb: 1\r\n"}};
        for (const auto &row : rows)
            QCOMPARE(withXresource(row.before, "Xft.dpi", row.line), row.after);
    }

    void merging()
    {
        const QByteArray big = "A.a: " + QByteArray(9000, 'a') + '\n'; // more than a block
        const QByteArray other = "Other.one: x\n";
        const QByteArray dpi = "Xft.dpi: 110\n";
        const struct {
            QByteArray xresources; // null: no file
            QByteArray xdefaults;
            int dpi;
            QByteArray merged;
        } rows[] = {{{}, {}, 110, other + dpi},
                    {"A.a: 1\n", "B.b: 2\n", 0, "A.a: 1\n" + other}, // the server's DPI goes
                    {{}, "B.b: 2\n", 0, "B.b: 2\n" + other},
                    {"A.a: 1", {}, 110, "A.a: 1\n" + other + dpi},
                    {"A.a: 1\\\n", {}, 110, "A.a: 1\n" + other + dpi},
                    {"A.a: 1\\", {}, 110, "A.a: 1\n" + other + dpi},
                    {"A.a: 1\\ ", {}, 110, "A.a: 1\n" + other + dpi},
                    {"A.a: 1\\\r\n", {}, 110, "A.a: 1\n" + other + dpi},
                    {"#include \".included\"\n", {}, 0, "A.in: 1\n" + other},
                    {big, {}, 110, big + other + dpi}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            if (!row.xresources.isNull())
                home.write(".Xresources"_s, row.xresources);
            if (!row.xdefaults.isNull())
                home.write(".Xdefaults"_s, row.xdefaults);
            home.write(".included"_s, "A.in: 1\n");
            QSettings().setValue("forceFontDPI"_s, row.dpi);
            loadServer("Other.one: x\nXft.dpi: 99\n");
            applyXResources(exportXftSettings);
            QCOMPARE(serverResources(), row.merged);
        }
    }

    void oddSurroundings()
    {
        const TemporaryHome home;
        loadServer("A.a: 1\nXft.dpi: 120\n");
        {
            const FakePrograms nothing(FakePrograms::Path::Instead);
            applyXResources(exportXftSettings);
        }
        QCOMPARE(serverResources(), QByteArray("A.a: 1\n"));

        home.makeFifo(".Xresources"_s);
        QSettings().setValue("forceFontDPI"_s, 130);
        const QString directory = "with blank; exit"_s;
        home.write(directory + "/.Xresources"_s, "B.b: 2\n");
        const QByteArray odd = QFile::encodeName(home.path(directory));
        const ScopedEnvironment temporary("TMPDIR", odd);
        applyXResources(exportXftSettings);
        QCOMPARE(serverResources(), QByteArray("A.a: 1\nXft.dpi: 130\n"));
        const ScopedEnvironment oddHome("HOME", odd);
        StandardError standardError;
        applyXResources(0);
        QCOMPARE(serverResources(), QByteArray("A.a: 1\nB.b: 2\nXft.dpi: 130\n"));
        const QByteArray told = standardError.take();
        QVERIFY2(told.startsWith("qaz-admin-theme: Can't merge X resources in " + odd + ", files that")
                     && told.endsWith(": It can't be written, or xrdb does not understand its name\n"),
                 told.constData());
    }

    void callsOfXrdb()
    {
        const TemporaryHome home;
        FakePrograms programs;
        const QString xrdb = "xrdb"_s;
        programs.add(xrdb, "[ \"$1\" = -merge ] && { cat \"$2\"; stat -c '! %a' \"$2\"; } >\"$HOME/merged\"");
        home.write(".Xresources"_s, "A.a: 1\n");
        QSettings().setValue(QLatin1String(RenderingKey::antialias), true);
        applyXResources(exportXftSettings);
        QCOMPARE(home.read("merged"_s), QByteArray("A.a: 1\nXft.antialias: 1\n! 600\n"));
        applyXResources(0);
        QCOMPARE(home.read("merged"_s), QByteArray("A.a: 1\n! 600\n"));
        const QVector<QStringList> calls = programs.calls(xrdb);
        QCOMPARE(calls.size(), 3);
        QCOMPARE(calls.at(0).join(u' '), "-quiet -remove -nocpp"_s);
        // The merged file stands beside the user's.
        QVERIFY(calls.at(1).join(u' ').startsWith("-merge "_s + home.path(".qaz-"_s)));
        QVERIFY2(!QFile::exists(calls.at(1).value(1)), "the merged file is temporary");
        const QByteArray property = "_QT_SETTINGS_TIMESTAMP_" + qgetenv("DISPLAY");
        const QByteArray stamp = run("xprop", {"-root"_s, QString::fromLocal8Bit(property)});
        QVERIFY2(stamp.startsWith(property + '(' + property + ") = 0x"), stamp.constData());
    }
};

QTEST_MAIN(TestXResources)
#include "tst_xresources.moc"
