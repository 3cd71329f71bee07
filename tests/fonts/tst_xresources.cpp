#include "fonts/xresources.h"

#include "fonts/renderingstore.h"
#include "fonts/serverresources.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/temporaryhome.h"

#include <QProcess>
#include <QSettings>
#include <QtTest>

#include <sys/stat.h>

using Values = QMap<QString, QVariant>;
Q_DECLARE_METATYPE(Values)

namespace {

const QString antialias = QLatin1String(RenderingKey::antialias);
const QString subPixel = QLatin1String(RenderingKey::subPixel);
const QString hintStyle = QLatin1String(RenderingKey::hintStyle);
const QString forceDpi = QLatin1String(RenderingKey::forceFontDpi);
const QString dontChange = QLatin1String(RenderingKey::dontChangeAaSettings);

QByteArray run(const QString &program, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// The server's resources, one a line with a single blank after the colon.
QByteArray serverResources()
{
    return run(QStringLiteral("xrdb"), {QStringLiteral("-query")}).replace(":\t", ": ");
}

void loadServer(const QByteArray &resources)
{
    run(QStringLiteral("xrdb"), {QStringLiteral("-load"), QStringLiteral("-nocpp")}, resources);
}

void store(const Values &values)
{
    QSettings settings;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings.setValue(value.key(), value.value());
}

} // namespace

class TestXResources : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setOrganizationName(QStringLiteral("qaz")); }
    void resourceLines_data();
    void resourceLines();
    void commandText_data();
    void commandText();
    void dpiOfAResource_data();
    void dpiOfAResource();
    void droppingAResource_data();
    void droppingAResource();
    void removingTheDpiKeepsOtherResources();
    void merging_data();
    void merging();
    void aFileThatIsNoneIsNotRead();
    void callsOfXrdb();
    void goesOnWithoutXrdb();
    void currentDpiIsAskedOfTheServer();
};

void TestXResources::resourceLines_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("lines");
    QTest::newRow("empty store") << Values{} << "";
    QTest::newRow("everything in order")
        << Values{{forceDpi, 120},
                  {subPixel, QLatin1String("vrgb")},
                  {hintStyle, QLatin1String("hintfull")},
                  {antialias, true}}
        << "Xft.antialias: 1\nXft.hinting: 1\nXft.hintstyle: hintfull\nXft.rgba: vrgb\nXft.dpi: 120\n";
    QTest::newRow("off") << Values{{antialias, false},
                                   {hintStyle, QLatin1String("hintnone")},
                                   {subPixel, QLatin1String("none")},
                                   {forceDpi, 0}}
                         << "Xft.antialias: 0\nXft.hinting: 0\nXft.hintstyle: hintnone\nXft.rgba: none\n";
    QTest::newRow("empty texts") << Values{{hintStyle, QLatin1String("")}, {subPixel, QLatin1String("")}}
                                 << "Xft.hinting: -1\n";
}

void TestXResources::resourceLines()
{
    const TemporaryHome home;
    QFETCH(Values, values);
    store(values);
    QTEST(xftResourceLines(QSettings()), "lines");
}

void TestXResources::commandText_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("defaults") << Values{} << QByteArray("0 unknown rgb full\n");
    QTest::newRow("system decides") << Values{{dontChange, true},
                                              {antialias, true},
                                              {hintStyle, QLatin1String("hintslight")}}
                                    << QByteArray("0 unknown rgb hintslight\n");
    QTest::newRow("own choice") << Values{{dontChange, false},
                                          {antialias, true},
                                          {subPixel, QLatin1String("none")},
                                          {hintStyle, QLatin1String("hintfull")},
                                          {forceDpi, 120}}
                                << QByteArray("120 true none hintfull\n");
    QTest::newRow("anti-aliasing never written")
        << Values{{dontChange, false}} << QByteArray("0 false rgb full\n");
    QTest::newRow("cut") << Values{{subPixel, QString(300, QLatin1Char('x'))}}
                         << "0 unknown " + QByteArray(255 - 39, 'x');
}

void TestXResources::commandText()
{
    const TemporaryHome home;
    QFETCH(Values, values);
    QFETCH(QByteArray, words);
    store(values);
    QCOMPARE(xftSettingsCommand(QSettings()), "QAZWM_UPDATE_VAL XftSettings " + words);
}

void TestXResources::dpiOfAResource_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QByteArray>("resource");
    QTest::addColumn<int>("dpi");
    QTest::newRow("not forced, whatever the server has") << 0 << QByteArray("120") << 0;
    QTest::newRow("the server counts") << 120 << QByteArray("110") << 110;
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
    QTest::newRow("between others") << QByteArray("A.b:\t1\nXft.dpi:\t120\nXft.rgba:\trgb\n")
                                    << QByteArray("A.b:\t1\nXft.rgba:\trgb\n");
    QTest::newRow("blanks and no newline") << QByteArray("A.b: 1\n Xft.dpi : 120") << QByteArray("A.b: 1\n");
    QTest::newRow("continued value") << QByteArray("Xft.dpi: 1\\\n20\nA.b: 1\n") << QByteArray("A.b: 1\n");
    QTest::newRow("inside another value")
        << QByteArray("A.b: x\\\nXft.dpi: 1\nC.d: 2\\") << QByteArray("A.b: x\\\nXft.dpi: 1\nC.d: 2\\");
    QTest::newRow("behind an escaped backslash")
        << QByteArray("A.b: x\\\\\nXft.dpi: 1\n") << QByteArray("A.b: x\\\\\n");
    QTest::newRow("behind a comment") << QByteArray("! x\\\nXft.dpi: 1\n") << QByteArray("! x\\\n");
    QTest::newRow("longer names") << QByteArray("Xft.dpi2: 1\nmyXft.dpi: 2\n")
                                  << QByteArray("Xft.dpi2: 1\nmyXft.dpi: 2\n");
    QTest::newRow("nothing") << QByteArray() << QByteArray();
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
    QTest::newRow("a forced DPI goes") << none << none << 0 << QByteArray("Other.one: x\n");
    QTest::newRow("Xresources wins") << QByteArray("A.a: 1\n") << QByteArray("B.b: 2\n") << 0
                                     << QByteArray("A.a: 1\nOther.one: x\n");
    QTest::newRow("Xdefaults") << none << QByteArray("B.b: 2\n") << 0 << QByteArray("B.b: 2\nOther.one: x\n");
    QTest::newRow("no final newline")
        << QByteArray("A.a: 1") << none << 110 << QByteArray("A.a: 1\nOther.one: x\nXft.dpi: 110\n");
    QTest::newRow("continued last line")
        << QByteArray("A.a: 1\\\n") << none << 110 << QByteArray("A.a: 1\nOther.one: x\nXft.dpi: 110\n");
    QTest::newRow("more than a block") << QByteArray("A.a: ") + QByteArray(9000, 'a') << none << 110
                                       << "A.a: " + QByteArray(9000, 'a') + "\nOther.one: x\nXft.dpi: 110\n";
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
    store({{forceDpi, dpi}});
    loadServer("Other.one: x\nXft.dpi: 99\n");
    applyXResources(exportXftSettings);
    QTEST(serverResources(), "merged");
}

void TestXResources::aFileThatIsNoneIsNotRead()
{
    const TemporaryHome home;
    QCOMPARE(::mkfifo(QFile::encodeName(home.path(QStringLiteral(".Xresources"))).constData(), 0600), 0);
    store({{forceDpi, 130}});
    loadServer("A.a: 1\n");
    applyXResources(exportXftSettings);
    QCOMPARE(serverResources(), QByteArray("A.a: 1\nXft.dpi: 130\n"));
}

void TestXResources::callsOfXrdb()
{
    const TemporaryHome home;
    FakePrograms programs;
    programs.add(QStringLiteral("xrdb"),
                 "[ \"$1\" = -merge ] && cat \"$2\" >\"$HOME/merged\" || cat >\"$HOME/removed\"");
    home.write(QStringLiteral(".Xresources"), "A.a: 1\n");
    store({{antialias, true}, {forceDpi, 0}});
    const QString stampProperty = QLatin1String("_QT_SETTINGS_TIMESTAMP_")
                                  + QString::fromLocal8Bit(qgetenv("DISPLAY"));
    applyXResources(exportXftSettings);
    const QVector<QStringList> calls = programs.calls(QStringLiteral("xrdb"));
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0),
             (QStringList{QStringLiteral("-quiet"), QStringLiteral("-remove"), QStringLiteral("-nocpp")}));
    QCOMPARE(calls.at(1).value(0), QStringLiteral("-merge"));
    QVERIFY2(!QFile::exists(calls.at(1).value(1)), "the merged file is temporary");
    QCOMPARE(home.read(QStringLiteral("removed")), QByteArray("Xft.dpi\n"));
    QCOMPARE(home.read(QStringLiteral("merged")), QByteArray("A.a: 1\nXft.antialias: 1\n"));
    const QByteArray stamp = run(QStringLiteral("xprop"), {QStringLiteral("-root"), stampProperty});
    QVERIFY2(stamp.contains('='), stamp.constData());

    applyXResources(0);
    QCOMPARE(programs.calls(QStringLiteral("xrdb")).size(), 3);
    QCOMPARE(home.read(QStringLiteral("merged")), QByteArray("A.a: 1\n"));
}

void TestXResources::goesOnWithoutXrdb()
{
    const TemporaryHome home;
    loadServer("A.a: 1\nXft.dpi: 120\n");
    {
        const FakePrograms programs(FakePrograms::Path::Instead);
        store({{antialias, true}});
        applyXResources(exportXftSettings);
    }
    QCOMPARE(serverResources(), QByteArray("A.a: 1\n"));
}

void TestXResources::currentDpiIsAskedOfTheServer()
{
    const TemporaryHome home;
    loadServer("Xft.dpi: 120\n");
    QCOMPARE(xftDpiResource(), QByteArray("120"));
    loadServer("Xft.dpi: 130\n");
    QCOMPARE(xftDpiResource(), QByteArray("130"));
    loadServer("A.a: 1\n");
    QVERIFY(xftDpiResource().isNull());
}

QTEST_MAIN(TestXResources)
#include "tst_xresources.moc"
