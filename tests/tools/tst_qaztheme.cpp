#include "settings/backup.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QtTest>

namespace {

const QString themeFile = ".config/qaz/current.themerc"_s;

struct Run {
    int status = -1;
    QByteArray out;
    QByteArray errors;
};

Run run(const QStringList &arguments, const QString &directory = QDir::homePath())
{
    QProcess process;
    process.setWorkingDirectory(directory);
    process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-theme"), arguments);
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(), process.readAllStandardError()};
}

Run run(const char *arguments)
{
    return run(QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts));
}

} // namespace

class TestQazTheme : public QObject
{
    Q_OBJECT
private slots:
    void commandsReadAndChangeTheFile_data();
    void commandsReadAndChangeTheFile();
    void valuesThatFit_data();
    void valuesThatFit();
    void everyKeyTakesItsDefault();
    void listDescribesTheKeys();
    void nothingIsLostBetweenTwoWriters();
    void withoutADisplayNobodyIsTold();
    void failuresAreTold();
    void copiesAreListedAndPutBack();
    void aDirectoryIsPutBack();
};

void TestQazTheme::commandsReadAndChangeTheFile_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QStringList>("commands");
    const auto row = [](const char *name, const QByteArray &before, const char *arguments, int status,
                        const char *out, const QByteArray &after, const QStringList &commands = {}) {
        QTest::newRow(name) << before << QByteArray(arguments) << status << QByteArray(out) << after
                            << commands;
    };
    const QByteArray file = "# mine\nScreenSaverDelay=90\nOther=1\nOpaqueMove=TRUE\n[group]\nPagingSpeed=1\n";
    row("stored, default and empty values", file,
        "get ScreenSaverDelay PagingSpeed Other SoundTheme TaskbarBoldFont", 0,
        "90\n30\n1\n\nVerdana-10:bold\n", file);
    row("a key without a default", file, "get Nobodys OpaqueMove", 1, "TRUE\n", file);
    row("json in the order of the pages", file, "get --json OpaqueMove WallPaper", 0,
        "{\n  \"WallPaper\": \"qaz-default\",\n  \"OpaqueMove\": \"TRUE\"\n}\n", file);
    row("foreign lines are kept", file, "set ScreenSaverDelay=0300 PagingSpeed=31", 0,
        "ScreenSaverDelay: 90 -> 300\nPagingSpeed: 30 -> 31\n",
        "# mine\nScreenSaverDelay=300\nOther=1\nOpaqueMove=TRUE\nPagingSpeed=31\n[group]\nPagingSpeed=1\n",
        {"QAZWM_UPDATE_VAL ScreenSaverDelay 300"_s, "QAZWM_UPDATE_VAL PagingSpeed 31"_s});
    row("what is equal is neither written nor announced", file,
        "set ScreenSaverDelay=90 OpaqueMove=false MenuDelayTime=300", 0, "", file);
    row("a default that differs between load and save is written", "", "set ArrangeWindowSpeed=0", 0,
        "ArrangeWindowSpeed: 0 -> 0\n", "ArrangeWindowSpeed=0\n",
        {"QAZWM_UPDATE_VAL ArrangeWindowSpeed 0"_s});
    row("the last of two values counts", "", "set MenuDelayTime=1 MenuDelayTime=2", 0,
        "MenuDelayTime: 300 -> 2\n", "MenuDelayTime=2\n", {"QAZWM_UPDATE_VAL MenuDelayTime 2"_s});
    row("all or nothing", file, "set ScreenSaverDelay=300 PagingSpeed=101", 2, "", file);
    row("an unknown key", file, "set Other=2", 2, "", file);
    row("an unknown key by force", "", "set --force Other=2", 0, "Other:  -> 2\n", "Other=2\n",
        {"QAZWM_UPDATE_VAL Other 2"_s});
    row("no key even by force", file, "set --force [x]=2", 2, "", file);
    row("a dry run", file, "set -n ScreenSaverDelay=300", 0, "ScreenSaverDelay: 90 -> 300\n", file);
    row("quietly", "", "-q set MenuDelayTime=2", 0, "", "MenuDelayTime=2\n",
        {"QAZWM_UPDATE_VAL MenuDelayTime 2"_s});
    row("changes as json", "", "set --json MenuDelayTime=2", 0,
        "{\n  \"MenuDelayTime\": {\"value\": \"2\", \"before\": \"300\"}\n}\n", "MenuDelayTime=2\n",
        {"QAZWM_UPDATE_VAL MenuDelayTime 2"_s});
    row("unset announces the default", file, "unset ScreenSaverDelay MenuDelayTime", 0,
        "ScreenSaverDelay: 90 -> 600\n", "# mine\nOther=1\nOpaqueMove=TRUE\n[group]\nPagingSpeed=1\n",
        {"QAZWM_UPDATE_VAL ScreenSaverDelay 600"_s});
    row("unset of what is the default", "MenuDelayTime=300\nA=1\n", "unset MenuDelayTime A --force", 0,
        "A: 1 -> \n", "");
    row("unset of an unknown key", file, "unset Other", 2, "", file);
    row("differences from the defaults", "ScreenSaverDelay=90\nOpaqueMove=True\nMenuDelayTime=300\n", "diff",
        1, "ScreenSaverDelay: 600 -> 90\n", "ScreenSaverDelay=90\nOpaqueMove=True\nMenuDelayTime=300\n");
    row("no differences", "MenuDelayTime=0300\n", "diff", 0, "", "MenuDelayTime=0300\n");
    row("another file is taken over", "Other=2\nMenuDelayTime=5\n", "apply other.themerc", 0,
        "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n",
        "Other=2\nMenuDelayTime=6\nDesktopColor=navy\n",
        {"QAZWM_UPDATE_VAL DesktopColor navy"_s, "QAZWM_UPDATE_VAL MenuDelayTime 6"_s});
    row("differences from another file", "MenuDelayTime=5\n", "diff other.themerc", 1,
        "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n", "MenuDelayTime=5\n");
    row("differences between two files", "", "diff other.themerc bad.themerc", 1,
        "DesktopColor: navy -> #3a6ea5\nMenuDelayTime: 6 -> -6\nPagingSpeed: 30 -> 1\n", "");
    row("a file with a value that does not fit", "MenuDelayTime=5\n", "apply bad.themerc", 2, "",
        "MenuDelayTime=5\n");
    row("another theme file than the user's", "A=1\n", "set -f other.themerc MenuDelayTime=7", 0,
        "MenuDelayTime: 6 -> 7\n", "A=1\n", {"QAZWM_UPDATE_VAL MenuDelayTime 7"_s});
    row("no command", "", "", 2, "", "");
    row("an unknown command", "", "put A=1", 2, "", "");
    row("an unknown option", "", "get -x WallPaper", 2, "", "");
    row("too few arguments", "", "get", 2, "", "");
    row("words to complete", "", "complete values OpaqueMove", 0, "true\nfalse\n", "");
}

void TestQazTheme::commandsReadAndChangeTheFile()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, arguments);
    QFETCH(QByteArray, after);
    const TemporaryHome home;
    home.write(themeFile, before);
    home.write("other.themerc"_s, "MenuDelayTime=6\nForeign=1\nDesktopColor=navy\n");
    home.write("bad.themerc"_s, "PagingSpeed=1\nMenuDelayTime=-6\n");
    WmListener listener;
    const Run result = run(arguments.constData());
    QTEST(result.status, "status");
    QTEST(result.out, "out");
    QCOMPARE(home.read(themeFile), after);
    QTEST(listener.take(), "commands");
    // What is wrong, or nothing, is one line.
    QCOMPARE(result.errors.count('\n'), result.status == 2 || arguments.contains("Nobodys") ? 1 : 0);
}

void TestQazTheme::valuesThatFit_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("good");
    QTest::addColumn<QStringList>("bad");
    QTest::addColumn<QByteArray>("allowed");
    const auto row = [](const char *key, const char *good, const char *bad, const char *allowed) {
        QTest::newRow(key) << QString::fromLatin1(key) << QString::fromUtf8(good).split(u'|')
                           << QString::fromUtf8(bad).split(u'|') << QByteArray(allowed);
    };
    row("TaskbarHeight", "21|280", "20|281||x|30.5", "a whole number from 21 to 280");
    row("ScreenSaverDelay", "0|90|59940", "-1|59941", "from 0 to 59940");
    row("DesktopIconSize", "16|256", "17|0", "one of 16, 22, 32, 48, 64, 96, 128, 256");
    row("LockerTTYLock", "true|false|True", "TRUE|1|yes|", "one of true, false");
    row("WallPaperPos", "Center|Tile|Stretch", "center|", "one of Center, Tile, Stretch");
    row("GradWindowMapStyle", "Normal|BottomToTop", "None", "one of Normal, TopToBottom");
    row("MenuColor2", "#123|#a6caf0|navy|light gray|qvlightray|Qt", "#12|blueish||qvlightgray", "a color");
    row("TitleFont",
        "Verdana-10:bold|DejaVu "
        "Sans-8:normal:italic|Verdana-9|-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1",
        "Verdana|Verdana-:bold|Verdana-x:bold|-10:bold|Noto-Sans-10:bold:italic|Verdana-10:fat|", "a font");
    row("WallPaper", "/a/b.png|qaz-default|#a6caf0|a b.png", "|a/b.png|..|#a6", "an absolute path");
    row("OpenSound", "/a.wav|a.wav|window-new||", "../a.wav|a\nb", "an absolute path");
    row("DecorTheme", "Slate||", "../Slate|..|a\tb", "the name of a theme");
    row("IconTheme", "qaz-tirsk", "|/x", "the name of a theme");
}

void TestQazTheme::valuesThatFit()
{
    QFETCH(QString, key);
    QFETCH(QStringList, good);
    QFETCH(QStringList, bad);
    QFETCH(QByteArray, allowed);
    const TemporaryHome home;
    for (const QString &value : qAsConst(good)) {
        const Run result = run({"set"_s, key + u'=' + value});
        QVERIFY2(result.status == 0, result.errors.constData());
    }
    const QString before = home.fingerprint();
    for (const QString &value : qAsConst(bad)) {
        const Run result = run({"set"_s, key + u'=' + value});
        QVERIFY2(result.status == 2, qPrintable(value));
        QVERIFY2(result.errors.startsWith("qaz-theme: " + key.toLatin1() + " can't be '")
                     && result.errors.contains(allowed) && result.errors.count('\n') == 1,
                 result.errors.constData());
    }
    QCOMPARE(home.fingerprint(), before);
}

/// Literal defaults stand in the pages' tests: here they only have to fit their own kinds.
void TestQazTheme::everyKeyTakesItsDefault()
{
    const TemporaryHome home;
    const QStringList keys = QString::fromLatin1(run("complete keys").out).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(keys.size(), 103);
    QStringList assignments{"set"_s};
    for (const QString &key : keys)
        assignments.append(key + u'=' + QString::fromUtf8(run({"get"_s, key}).out).trimmed());
    const Run result = run(assignments);
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(run("diff").status, 0);
}

void TestQazTheme::listDescribesTheKeys()
{
    const TemporaryHome home;
    home.write(themeFile, "PagingSpeed=5\n");
    const QJsonObject all = QJsonDocument::fromJson(run("list --json").out).object();
    QCOMPARE(all.size(), 103);
    const QJsonObject speed = all.value("PagingSpeed"_s).toObject();
    QCOMPARE(speed.value("value"_s).toString(), "5"_s);
    QCOMPARE(speed.value("default"_s).toString(), "30"_s);
    QVERIFY(speed.value("differs"_s).toBool() && speed.value("set"_s).toBool());
    QCOMPARE(all.value("WallPaperPos"_s).toObject().value("values"_s).toArray().size(), 3);
    const QByteArray list = run("list paging*speed").out.simplified();
    QCOMPARE(list, QByteArray("* PagingSpeed 5 30 Autopaging speed"));
    const QByteArrayList lines = run("list").out.split('\n');
    QCOMPARE(lines.size(), 104);
    QVERIFY(lines.first().contains("WallPaper ") && lines.at(102).contains("SoundTheme "));
    const ScopedEnvironment language("LANGUAGE", "de");
    QCOMPARE(run("list PagerColor2").out.simplified(),
             QByteArray("PagerColor2 #fbfcfd #fbfcfd Farbe am Ende des Verlaufs: Hintergrund des Pagers"));
}

void TestQazTheme::nothingIsLostBetweenTwoWriters()
{
    const TemporaryHome home;
    QProcess writers[4];
    const char *const keys[] = {"PagingSpeed", "MenuDelayTime", "MenuDelayTime2", "TaskbarShowDelay"};
    for (int round = 1; round <= 5; ++round) {
        for (int i = 0; i < 4; ++i)
            writers[i].start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-theme"),
                             {"set"_s, QStringLiteral("%1=%2").arg(QLatin1String(keys[i])).arg(round)});
        for (QProcess &writer : writers)
            QVERIFY(writer.waitForFinished() && writer.exitCode() == 0);
        for (const char *key : keys)
            QVERIFY2(home.read(themeFile).contains(QByteArray(key) + '=' + QByteArray::number(round) + '\n'),
                     key);
    }
}

void TestQazTheme::withoutADisplayNobodyIsTold()
{
    const TemporaryHome home;
    const ScopedEnvironment display("DISPLAY", {});
    QCOMPARE(run("get PagingSpeed").errors, QByteArray());
    const Run result = run("set PagingSpeed=5");
    QCOMPARE(result.status, 0);
    QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=5\n"));
    QVERIFY(result.errors.contains("nobody was told") && result.errors.count('\n') == 1);
}

void TestQazTheme::failuresAreTold()
{
    const TemporaryHome home;
    QVERIFY(home.makeDirectory(themeFile));
    for (const char *arguments :
         {"get PagingSpeed", "set PagingSpeed=5", "unset PagingSpeed", "list", "diff", "apply /nowhere",
          "-f x.themerc apply .", "-f x.themerc/y set PagingSpeed=5"}) {
        const Run result = run(arguments);
        QVERIFY2(result.status == 3 && !result.errors.isEmpty() && result.out.isEmpty(), arguments);
        home.write("x.themerc"_s, {});
    }
}

void TestQazTheme::copiesAreListedAndPutBack()
{
    const TemporaryHome home;
    home.write(themeFile, "PagingSpeed=1\n");
    home.write(".config/other"_s, "other");
    const QStringList copies{backUp(home.path(themeFile)), backUp(home.path(".config/other"_s))};
    home.write(themeFile, "PagingSpeed=2\n# new\n");
    const QByteArrayList lines = run("backups").out.trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).trimmed().startsWith("1 ") && lines.at(0).contains(QFile::encodeName(copies.at(1))));
    const QByteArray ofTheme = run({"backups"_s, home.path(themeFile)}).out;
    QVERIFY(ofTheme.trimmed().startsWith("2 ") && ofTheme.count('\n') == 1);
    const auto list
        = QJsonDocument::fromJson(run("backups --json").out).object().value("backups"_s).toArray();
    QCOMPARE(list.at(1).toObject().value("original"_s).toString(), home.path(themeFile));

    WmListener listener;
    QCOMPARE(run("restore 3").status, 2);
    QCOMPARE(run("restore -n 2").status, 0);
    QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=2\n# new\n"));
    QCOMPARE(listener.take(), QStringList());
    QCOMPARE(run("restore 2").status, 0);
    QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=1\n"));
    QCOMPARE(listener.take(), QStringList{"QAZWM_UPDATE_VAL PagingSpeed 1"_s});
    QCOMPARE(home.backups(), QByteArrayList({"PagingSpeed=1\n", "PagingSpeed=2\n# new\n", "other"}));
    // What was there a moment ago is the newest copy of the file.
    QCOMPARE(run({"restore"_s, home.path(themeFile)}).status, 0);
    QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=2\n# new\n"));
    QVERIFY(QFile::remove(home.path(".config/other"_s)));
    QCOMPARE(run({"restore"_s, copies.at(1)}).status, 0);
    QCOMPARE(home.read(".config/other"_s), QByteArray("other"));
}

void TestQazTheme::aDirectoryIsPutBack()
{
    const TemporaryHome home;
    home.write(".config/qaz/a/b"_s, "1");
    QVERIFY(!backUp(home.path(".config/qaz"_s)).isEmpty());
    home.write(".config/qaz/a/b"_s, "2");
    home.write(".config/qaz/c"_s, "3");
    QCOMPARE(run({"restore"_s, home.path(".config/qaz"_s)}).status, 0);
    QCOMPARE(home.read(".config/qaz/a/b"_s), QByteArray("1"));
    QCOMPARE(QDir(home.path(".config"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{"qaz"_s});
    QVERIFY(!home.exists(".config/qaz/c"_s));
    QCOMPARE(run("backups").out.count('\n'), 2);
}

QTEST_GUILESS_MAIN(TestQazTheme)
#include "tst_qaztheme.moc"
