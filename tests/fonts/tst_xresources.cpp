#include "fonts/xresources.h"

#include "fonts/renderingstore.h"
#include "fonts/serverresources.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/temporaryhome.h"

#include <QProcess>
#include <QSettings>
#include <QtTest>

#include <sys/stat.h>

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
    return run("xrdb", {QStringLiteral("-query")}).replace(":\t", ": ");
}

void loadServer(const QByteArray &resources)
{
    run("xrdb", {QStringLiteral("-load"), QStringLiteral("-nocpp")}, resources);
}

void forceDpi(int dpi)
{
    QSettings().setValue(QLatin1String(RenderingKey::forceFontDpi), dpi);
}

} // namespace

class TestXResources : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setOrganizationName(QStringLiteral("qaz")); }
    void storedChoices_data();
    void storedChoices();
    void longCommandsAreCut();
    void dpiOfAResource_data();
    void dpiOfAResource();
    void droppingAResource_data();
    void droppingAResource();
    void removingTheDpiKeepsOtherResources();
    void merging_data();
    void merging();
    void oddSurroundings();
    void callsOfXrdb();
    void currentDpiIsAskedOfTheServer();
};

void TestXResources::storedChoices_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QByteArray>("command");
    const auto row = [](const char *name, const char *stored, const char *lines, const char *command) {
        QTest::newRow(name) << QByteArray(stored) << QString::fromLatin1(lines) << QByteArray(command);
    };
    row("nothing stored", "", "", "0 unknown rgb full");
    row("own choice",
        "forceFontDPI=120\nXftSubPixel=vrgb\nXftHintStyle=hintfull\nXftAntialias=true\n"
        "dontChangeAASettings=false\n",
        "Xft.antialias: 1\nXft.hinting: 1\nXft.hintstyle: hintfull\nXft.rgba: vrgb\nXft.dpi: 120\n",
        "120 true vrgb hintfull");
    row("all off",
        "XftAntialias=false\nXftHintStyle=hintnone\nXftSubPixel=none\nforceFontDPI=0\ndontChangeAASettings="
        "false\n",
        "Xft.antialias: 0\nXft.hinting: 0\nXft.hintstyle: hintnone\nXft.rgba: none\n",
        "0 false none hintnone");
    row("the system decides", "XftAntialias=true\ndontChangeAASettings=true\n", "Xft.antialias: 1\n",
        "0 unknown rgb full");
    row("anti-aliasing never stored", "dontChangeAASettings=false\n", "", "0 false rgb full");
    row("empty texts", "XftHintStyle=\nXftSubPixel=\n", "Xft.hinting: -1\n", "0 unknown  ");
}

void TestXResources::storedChoices()
{
    const TemporaryHome home;
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, command);
    const QSettings store(home.write(QStringLiteral("store"), "[General]\n" + stored), QSettings::IniFormat);
    QTEST(xftResourceLines(store), "lines");
    QCOMPARE(xftSettingsCommand(store), "QAZWM_UPDATE_VAL XftSettings " + command + '\n');
}

void TestXResources::longCommandsAreCut()
{
    const TemporaryHome home;
    QSettings store;
    store.setValue(QLatin1String(RenderingKey::subPixel), QString(300, QLatin1Char('x')));
    const QByteArray begin = "QAZWM_UPDATE_VAL XftSettings 0 unknown ";
    QCOMPARE(xftSettingsCommand(store), begin + QByteArray(255 - begin.size(), 'x'));
}

void TestXResources::dpiOfAResource_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QByteArray>("resource");
    QTest::addColumn<int>("dpi");
    QTest::newRow("not forced, whatever the server has") << 0 << QByteArray("120") << 0;
    QTest::newRow("truncated") << 120 << QByteArray("119.9") << 119;
    QTest::newRow("96 is not forced") << 120 << QByteArray("96") << 0;
    QTest::newRow("nor 96 and a fraction") << 120 << QByteArray("96.7") << 0;
    QTest::newRow("no resource") << 96 << QByteArray() << 96;
    QTest::newRow("no number") << 120 << QByteArray("high") << 120;
    QTest::newRow("number at the start") << 120 << QByteArray("72dpi") << 72;
    QTest::newRow("beyond every number") << 120 << QByteArray("1e999") << 120;
}

void TestXResources::dpiOfAResource()
{
    QFETCH(int, stored);
    QFETCH(QByteArray, resource);
    QTEST(forcedDpi(stored, resource), "dpi");
}

void TestXResources::droppingAResource_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char *name, const char *text, const char *kept) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(kept);
    };
    row("between others", "A.b:\t1\nXft.dpi:\t120\nXft.rgba:\trgb\n", "A.b:\t1\nXft.rgba:\trgb\n");
    row("blanks and no newline", "A.b: 1\n Xft.dpi : 120", "A.b: 1\n");
    row("continued value", "Xft.dpi: 1\\\n20\nA.b: 1\n", "A.b: 1\n");
    row("inside another value", "A.b: x\\\nXft.dpi: 1\nC.d: 2\\", "A.b: x\\\nXft.dpi: 1\nC.d: 2\\");
    row("behind an escaped backslash", "A.b: x\\\\\nXft.dpi: 1\n", "A.b: x\\\\\n");
    row("behind a comment", "! x\\\nXft.dpi: 1\n", "! x\\\n");
    row("longer names", "Xft.dpi2: 1\nmyXft.dpi: 2\n", "Xft.dpi2: 1\nmyXft.dpi: 2\n");
}

void TestXResources::droppingAResource()
{
    QFETCH(QByteArray, text);
    QTEST(withoutResource(text, "Xft.dpi"), "kept");
}

void TestXResources::removingTheDpiKeepsOtherResources()
{
    loadServer("Foo.bar: 1\nXft.dpi: 120\nXft.rgba: bgr\n");
    removeDpiFromServer();
    QCOMPARE(serverResources(), QByteArray("Foo.bar: 1\nXft.rgba: bgr\n"));
    loadServer("Xft.dpi: 120\n");
    removeDpiFromServer();
    QCOMPARE(serverResources(), QByteArray());
}

void TestXResources::merging_data()
{
    QTest::addColumn<QByteArray>("xresources");
    QTest::addColumn<QByteArray>("xdefaults");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QByteArray>("merged");
    const QByteArray none;
    QTest::newRow("no file") << none << none << 120 << QByteArray("Other.one: x\nXft.dpi: 120\n");
    QTest::newRow("a forced DPI goes, Xresources wins")
        << QByteArray("A.a: 1\n") << QByteArray("B.b: 2\n") << 0 << QByteArray("A.a: 1\nOther.one: x\n");
    QTest::newRow("Xdefaults") << none << QByteArray("B.b: 2\n") << 0 << QByteArray("B.b: 2\nOther.one: x\n");
    const QByteArray both = "A.a: 1\nOther.one: x\nXft.dpi: 110\n";
    QTest::newRow("no final newline") << QByteArray("A.a: 1") << none << 110 << both;
    QTest::newRow("continued last line") << QByteArray("A.a: 1\\\n") << none << 110 << both;
    const QByteArray big = "A.a: " + QByteArray(9000, 'a') + '\n';
    QTest::newRow("more than a block") << big << none << 110 << big + "Other.one: x\nXft.dpi: 110\n";
}

void TestXResources::merging()
{
    const TemporaryHome home;
    QFETCH(QByteArray, xresources);
    QFETCH(QByteArray, xdefaults);
    QFETCH(int, dpi);
    if (!xresources.isNull())
        home.write(QStringLiteral(".Xresources"), xresources);
    if (!xdefaults.isNull())
        home.write(QStringLiteral(".Xdefaults"), xdefaults);
    forceDpi(dpi);
    loadServer("Other.one: x\nXft.dpi: 99\n");
    applyXResources(exportXftSettings);
    QTEST(serverResources(), "merged");
}

void TestXResources::oddSurroundings()
{
    const TemporaryHome home;
    loadServer("A.a: 1\nXft.dpi: 120\n");
    {
        const FakePrograms nothing(FakePrograms::Path::Instead);
        applyXResources(exportXftSettings);
    }
    QCOMPARE(serverResources(), QByteArray("A.a: 1\n"));

    QCOMPARE(::mkfifo(QFile::encodeName(home.path(QStringLiteral(".Xresources"))).constData(), 0600), 0);
    QVERIFY(home.makeDirectory(QStringLiteral("with blank; exit")));
    const ScopedEnvironment temporary("TMPDIR",
                                      QFile::encodeName(home.path(QStringLiteral("with blank; exit"))));
    forceDpi(130);
    applyXResources(exportXftSettings);
    QCOMPARE(serverResources(), QByteArray("A.a: 1\nXft.dpi: 130\n"));
}

void TestXResources::callsOfXrdb()
{
    const TemporaryHome home;
    FakePrograms programs;
    const QString xrdb = QStringLiteral("xrdb");
    programs.add(xrdb, "[ \"$1\" = -merge ] && cat \"$2\" >\"$HOME/merged\" || cat >\"$HOME/removed\"");
    home.write(QStringLiteral(".Xresources"), "A.a: 1\n");
    QSettings().setValue(QLatin1String(RenderingKey::antialias), true);
    applyXResources(exportXftSettings);
    const QVector<QStringList> calls = programs.calls(xrdb);
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).join(QLatin1Char(' ')), QStringLiteral("-quiet -remove -nocpp"));
    QCOMPARE(calls.at(1).value(0), QStringLiteral("-merge"));
    QVERIFY2(!QFile::exists(calls.at(1).value(1)), "the merged file is temporary");
    QCOMPARE(home.read(QStringLiteral("removed")), QByteArray("Xft.dpi\n"));
    QCOMPARE(home.read(QStringLiteral("merged")), QByteArray("A.a: 1\nXft.antialias: 1\n"));
    const QByteArray property = "_QT_SETTINGS_TIMESTAMP_" + qgetenv("DISPLAY");
    const QByteArray stamp = run("xprop", {QStringLiteral("-root"), QString::fromLocal8Bit(property)});
    QVERIFY2(stamp.startsWith(property + '(' + property + ") = 0x"), stamp.constData());

    applyXResources(0);
    QCOMPARE(programs.calls(xrdb).size(), 3);
    QCOMPARE(home.read(QStringLiteral("merged")), QByteArray("A.a: 1\n"));
}

void TestXResources::currentDpiIsAskedOfTheServer()
{
    const TemporaryHome home;
    for (const QByteArray dpi : {"120", "130"}) {
        loadServer("Xft.dpi: " + dpi);
        QCOMPARE(xftDpiResource(), dpi);
    }
    loadServer("A.a: 1\n");
    QVERIFY(xftDpiResource().isNull());
}

QTEST_MAIN(TestXResources)
#include "tst_xresources.moc"
