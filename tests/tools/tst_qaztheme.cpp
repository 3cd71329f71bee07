#include "settings/backup.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"
#include "tests/tools/toolrun.h"

#include <QtTest>

namespace {

const QString themeFile = ".config/qaz/current.themerc"_s;

ToolRun run(const QStringList &arguments)
{
    return {"qaz-theme"_s, arguments};
}

ToolRun run(const char *arguments)
{
    return run(QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts));
}

} // namespace

class TestQazTheme : public QObject
{
    Q_OBJECT
private slots:
    void commandsReadAndChangeTheFile_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArray>("after"); // null: as before
        QTest::addColumn<QString>("commands");
        const auto row = [](const char *arguments, const QByteArray &before, int status, const char *out = "",
                            const QByteArray &after = {}, const char *commands = "") {
            QTest::newRow(arguments) << before << status << QByteArray(out) << after
                                     << QString::fromLatin1(commands);
        };
        const QByteArray file
            = "# mine\nScreenSaverDelay=90\nOther=1\nOpaqueMove=TRUE\n[group]\nPagingSpeed=1\n";
        row("get ScreenSaverDelay PagingSpeed Other SoundTheme TaskbarBoldFont", file, 0,
            "90\n30\n1\n\nVerdana-10:bold\n");
        row("get Nobodys OpaqueMove", file, 1, "TRUE\n");
        row("get Own", "Own=\n", 0, "\n");
        row("get --json OpaqueMove WallPaper", file, 0, // in the order of the pages
            "{\n  \"WallPaper\": \"qaz-default\",\n  \"OpaqueMove\": \"TRUE\"\n}\n");
        row("set ScreenSaverDelay=0300 PagingSpeed=31", file, 0,
            "ScreenSaverDelay: 90 -> 300\nPagingSpeed: 30 -> 31\n",
            "# "
            "mine\nScreenSaverDelay=300\nOther=1\nOpaqueMove=TRUE\nPagingSpeed=31\n[group]\nPagingSpeed=1\n",
            "ScreenSaverDelay 300|PagingSpeed 31");
        row("set ScreenSaverDelay=90 OpaqueMove=false MenuDelayTime=300", file, 0); // all are equal
        row("set ArrangeWindowSpeed=0", "", 0, "ArrangeWindowSpeed: 0 -> 0\n", "ArrangeWindowSpeed=0\n",
            "ArrangeWindowSpeed 0"); // its default differs between load and save
        row("set MenuDelayTime=1 MenuDelayTime=2", "", 0, "MenuDelayTime: 300 -> 2\n", "MenuDelayTime=2\n",
            "MenuDelayTime 2");
        row("set ScreenSaverDelay=300 PagingSpeed=101", file, 2);
        row("set Other=2", file, 2);
        row("set --force Other=2", "", 0, "Other:  -> 2\n", "Other=2\n", "Other 2");
        row("set --force [x]=2", file, 2);
        row("set -n ScreenSaverDelay=300", file, 0, "ScreenSaverDelay: 90 -> 300\n");
        row("-q set MenuDelayTime=2", "", 0, "", "MenuDelayTime=2\n", "MenuDelayTime 2");
        row("set --json MenuDelayTime=2", "", 0,
            "{\n  \"MenuDelayTime\": {\"value\": \"2\", \"before\": \"300\"}\n}\n", "MenuDelayTime=2\n",
            "MenuDelayTime 2");
        row("unset ScreenSaverDelay MenuDelayTime", file, 0, "ScreenSaverDelay: 90 -> 600\n",
            "# mine\nOther=1\nOpaqueMove=TRUE\n[group]\nPagingSpeed=1\n", "ScreenSaverDelay 600");
        row("unset MenuDelayTime A --force", "MenuDelayTime=300\nA=1\n", 0, "A: 1 -> \n", "");
        row("unset Other", file, 2);
        row("diff", "ScreenSaverDelay=90\nOpaqueMove=True\nMenuDelayTime=0300\n", 1,
            "ScreenSaverDelay: 600 -> 90\n");
        row("diff -q", "MenuDelayTime=0300\n", 0);
        row("apply other.themerc", "Other=2\nMenuDelayTime=5\n", 0,
            "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n",
            "Other=2\nMenuDelayTime=6\nDesktopColor=navy\n", "DesktopColor navy|MenuDelayTime 6");
        row("diff other.themerc", "MenuDelayTime=5\n", 1,
            "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n");
        row("diff other.themerc bad.themerc", "", 1,
            "DesktopColor: navy -> #3a6ea5\nMenuDelayTime: 6 -> -6\nPagingSpeed: 30 -> 1\n");
        row("apply bad.themerc", "MenuDelayTime=5\n", 2);
        for (const char *wrong : {"-q", "put A=1", "get -x WallPaper", "get"})
            row(wrong, "", 2);
        row("complete values OpaqueMove", "", 0, "true\nfalse\n");
    }
    void commandsReadAndChangeTheFile()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const TemporaryHome home;
        home.write(themeFile, before);
        home.write("other.themerc"_s, "MenuDelayTime=6\nForeign=1\nDesktopColor=navy\n");
        home.write("bad.themerc"_s, "PagingSpeed=1\nMenuDelayTime=-6\n");
        WmListener listener;
        const ToolRun result = run(QTest::currentDataTag());
        QTEST(result.status, "status");
        QTEST(result.out, "out");
        QCOMPARE(home.read(themeFile), after.isNull() ? before : after);
        QTEST(listener.takeUpdates(), "commands");
        // What is wrong, or nothing, is one line.
        const bool isWrong = result.status == 2 || QByteArray(QTest::currentDataTag()).contains("Nobodys");
        QCOMPARE(result.errors.count('\n'), isWrong ? 1 : 0);
    }

    void valuesThatFit()
    {
        const std::array<QString, 4> rows[] = {
            // the key, values that fit, values that don't, and what is said about these
            {"TaskbarHeight"_s, "21|280"_s, "20|281||x|30.5"_s, "a whole number from 21 to 280"_s},
            {"ScreenSaverDelay"_s, "0|90|59940"_s, "-1|59941"_s, "from 0 to 59940"_s},
            {"DesktopIconSize"_s, "16|256"_s, "17|0"_s, "one of 16, 22, 32, 48, 64, 96, 128, 256"_s},
            {"LockerTTYLock"_s, "true|false|True"_s, "TRUE|1|yes|"_s, "one of true, false"_s},
            {"WallPaperPos"_s, "Center|Tile|Stretch"_s, "center|"_s, "one of Center, Tile, Stretch"_s},
            {"GradWindowMapStyle"_s, "Normal|BottomToTop"_s, "None"_s, "one of Normal, TopToBottom"_s},
            {"MenuColor2"_s, "#123|#a6caf0|navy|light gray|qvlightray|Qt"_s, "#12|blueish||qvlightgray"_s,
             "a color"_s},
            {"TitleFont"_s,
             "Verdana-10:bold|DejaVu Sans-8:normal:italic|Verdana-9|"
             "-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1"_s,
             "Verdana|Verdana-:bold|Verdana-x:bold|-10:bold|Noto-Sans-10:bold:italic|Verdana-10:fat|"_s,
             "a font"_s},
            {"WallPaper"_s, "/a/b.png|qaz-default|#a6caf0|a b.png"_s, "|a/b.png|..|#a6"_s,
             "an absolute path"_s},
            {"OpenSound"_s, "/a.wav|a.wav|window-new||"_s, "../a.wav|a\nb"_s, "an absolute path"_s},
            {"DecorTheme"_s, "Slate||"_s, "../Slate|..|a\tb"_s, "the name of a theme"_s},
            {"IconTheme"_s, "qaz-tirsk"_s, "|/x"_s, "the name of a theme"_s}};
        for (const auto &[key, good, bad, allowed] : rows) {
            const TemporaryHome home;
            for (const QString &value : good.split(u'|')) {
                const ToolRun result = run({"set"_s, key + u'=' + value});
                QVERIFY2(result.status == 0, result.errors.constData());
            }
            const QString before = home.fingerprint();
            for (const QString &value : bad.split(u'|')) {
                const ToolRun result = run({"set"_s, key + u'=' + value});
                const QString line = QString::fromUtf8(result.errors);
                QVERIFY2(result.status == 2 && line.startsWith("qaz-theme: "_s + key + " can't be '"_s)
                             && line.contains(allowed) && line.count(u'\n') == 1,
                         qPrintable(key + u'=' + value + ": "_s + line));
            }
            QCOMPARE(home.fingerprint(), before);
        }
    }

    /// Literal defaults stand in the pages' tests: here they only have to fit their own kinds.
    void everyKeyTakesItsDefault()
    {
        const TemporaryHome home;
        const QStringList keys = QString::fromLatin1(run("complete keys").out)
                                     .split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(keys.size(), 103);
        QStringList assignments{"set"_s};
        for (const QString &key : keys)
            assignments.append(key + u'=' + QString::fromUtf8(run({"get"_s, key}).out).trimmed());
        const ToolRun result = run(assignments);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(run("diff").status, 0);
    }

    void listDescribesTheKeys()
    {
        const TemporaryHome home;
        home.write(themeFile, "PagingSpeed=5\n");
        const QJsonObject all = QJsonDocument::fromJson(run("list --json").out).object();
        QCOMPARE(all.size(), 103);
        const QJsonObject speed = all.value("PagingSpeed"_s).toObject();
        QCOMPARE(speed.value("value"_s).toString() + u'|' + speed.value("default"_s).toString(), "5|30"_s);
        QVERIFY(speed.value("differs"_s).toBool() && speed.value("set"_s).toBool());
        QCOMPARE(all.value("WallPaperPos"_s).toObject().value("values"_s).toArray().size(), 3);
        QCOMPARE(run("list paging*speed").out.simplified(),
                 QByteArray("* PagingSpeed 5 30 Autopaging speed"));
        const QByteArrayList lines = run("list").out.split('\n');
        QCOMPARE(lines.size(), 104);
        QVERIFY(lines.first().contains("WallPaper ") && lines.at(102).contains("SoundTheme "));
        const ScopedEnvironment language("LANGUAGE", "de");
        QCOMPARE(
            run("list PagerColor2").out.simplified(),
            QByteArray("PagerColor2 #fbfcfd #fbfcfd Farbe am Ende des Verlaufs: Hintergrund des Pagers"));
    }

    void nothingIsLostBetweenTwoWriters()
    {
        const TemporaryHome home;
        QProcess writers[4];
        const QString keys[] = {"PagingSpeed"_s, "MenuDelayTime"_s, "MenuDelayTime2"_s, "TaskbarShowDelay"_s};
        for (int round = 1; round <= 5; ++round) {
            const QString value = "=%1"_s.arg(round);
            for (int i = 0; i < 4; ++i)
                writers[i].start(QStringLiteral(QAZ_BINARY_DIR "/bin/qaz-theme"), {"set"_s, keys[i] + value});
            for (QProcess &writer : writers)
                QVERIFY(writer.waitForFinished() && writer.exitCode() == 0);
            for (const QString &key : keys)
                QVERIFY2(home.read(themeFile).contains((key + value + u'\n').toLatin1()), qPrintable(key));
        }
    }

    void withoutADisplayNobodyIsTold()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        QCOMPARE(run("get PagingSpeed").errors, QByteArray());
        const ToolRun result = run("set PagingSpeed=5");
        QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=5\n"));
        QVERIFY(result.status == 0 && result.errors.contains("nobody was told")
                && result.errors.count('\n') == 1);
    }

    void failuresAreTold()
    {
        const TemporaryHome home;
        QVERIFY(home.makeDirectory(themeFile));
        for (const char *arguments :
             {"get PagingSpeed", "set PagingSpeed=5", "unset PagingSpeed", "list", "diff", "apply /nowhere",
              "-f x.themerc apply .", "-f x.themerc/y set PagingSpeed=5"}) {
            const ToolRun result = run(arguments);
            QVERIFY2(result.status == 3 && !result.errors.isEmpty() && result.out.isEmpty(), arguments);
            home.write("x.themerc"_s, {});
        }
    }

    void copiesAreListedAndPutBack()
    {
        const TemporaryHome home;
        home.write(themeFile, "PagingSpeed=1\n");
        home.write(".config/other"_s, "other");
        const QStringList copies{backUp(home.path(themeFile)), backUp(home.path(".config/other"_s))};
        home.write(themeFile, "PagingSpeed=2\n# new\n");
        const QByteArrayList lines = run("backups").out.trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines.at(0).trimmed().startsWith("1 ")
                && lines.at(0).contains(QFile::encodeName(copies.at(1))));
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

    void aDirectoryIsPutBack()
    {
        const TemporaryHome home;
        home.write(".config/qaz/a/b"_s, "1");
        QVERIFY(!backUp(home.path(".config/qaz"_s)).isEmpty());
        home.write(".config/qaz/a/b"_s, "2");
        home.write(".config/qaz/c"_s, "3");
        QCOMPARE(run({"restore"_s, home.path(".config/qaz"_s)}).status, 0);
        QCOMPARE(home.read(".config/qaz/a/b"_s), QByteArray("1"));
        QCOMPARE(
            QDir(home.path(".config"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{"qaz"_s});
        QVERIFY(!home.exists(".config/qaz/c"_s));
        QCOMPARE(run("backups").out.count('\n'), 2);
    }
};

QTEST_GUILESS_MAIN(TestQazTheme)
#include "tst_qaztheme.moc"
