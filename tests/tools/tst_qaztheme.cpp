#include "settings/backup.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"
#include "tests/support/wmlistener.h"
#include "tests/tools/toolrun.h"

class TestQazTheme : public QObject
{
    Q_OBJECT
private slots:
    void commandsReadAndChangeTheFile()
    {
        const QByteArray file = "# mine\nScreenSaverDelay=90\nOther=1\nOpaqueMove=TRUE\n[g]\nPagingSpeed=1\n";
        const struct {
            const char *arguments;
            QByteArray before;
            int status;
            QByteArray out = "";
            QByteArray after = {}; // null: as before
            QByteArray updates = "";
        } rows[] = {
            {"get OpaqueMove PagingSpeed Other SoundTheme", file, 0, "TRUE\n30\n1\n\n"},
            {"get Nobodys OpaqueMove", file, 1, "TRUE\n"},
            {"get Own", "Own=\n", 0, "\n"},
            {"get --json OpaqueMove WallPaper", file, 0, // in the order of the pages
             "{\n  \"WallPaper\": \"qaz-default\",\n  \"OpaqueMove\": \"TRUE\"\n}\n"},
            {"set ScreenSaverDelay=0300 PagingSpeed=31", file, 0,
             "ScreenSaverDelay: 90 -> 300\nPagingSpeed: 30 -> 31\n",
             "# mine\nScreenSaverDelay=300\nOther=1\nOpaqueMove=TRUE\nPagingSpeed=31\n[g]\nPagingSpeed=1\n",
             "ScreenSaverDelay 300|PagingSpeed 31"},
            {"set ScreenSaverDelay=90 OpaqueMove=false MenuDelayTime=300", file, 0}, // all are equal
            {"set ArrangeWindowSpeed=0", "", 0, "ArrangeWindowSpeed: 0 -> 0\n", "ArrangeWindowSpeed=0\n",
             "ArrangeWindowSpeed 0"}, // its default differs between load and save
            {"set PagingSpeed=1 PagingSpeed=2", "", 0, "PagingSpeed: 30 -> 2\n", "PagingSpeed=2\n",
             "PagingSpeed 2"},
            {"set ScreenSaverDelay=300 PagingSpeed=101", file, 2},
            {"set Other=2", file, 2},
            {"set --force Other=2", "", 0, "Other:  -> 2\n", "Other=2\n", "Other 2"},
            {"set --force [x]=2", file, 2},
            {"set -n ScreenSaverDelay=300", file, 0, "ScreenSaverDelay: 90 -> 300\n"},
            {"-q set MenuDelayTime=2", "", 0, "", "MenuDelayTime=2\n", "MenuDelayTime 2"},
            {"set --json PagingSpeed=2", "", 0,
             "{\n  \"PagingSpeed\": {\"value\": \"2\", \"before\": \"30\"}\n}\n", "PagingSpeed=2\n",
             "PagingSpeed 2"},
            {"unset ScreenSaverDelay MenuDelayTime", file, 0, "ScreenSaverDelay: 90 -> 600\n",
             "# mine\nOther=1\nOpaqueMove=TRUE\n[g]\nPagingSpeed=1\n", "ScreenSaverDelay 600"},
            {"unset MenuDelayTime A --force", "MenuDelayTime=300\nA=1\n", 0, "A: 1 -> \n", ""},
            {"unset Other", file, 2},
            {"diff", "PagingSpeed=9\nOpaqueMove=True\nMenuDelayTime=0300\n", 1, "PagingSpeed: 30 -> 9\n"},
            {"diff -q", "MenuDelayTime=0300\n", 0},
            {"apply other.themerc", "Other=2\nMenuDelayTime=5\n", 0,
             "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n",
             "Other=2\nMenuDelayTime=6\nDesktopColor=navy\n", "DesktopColor navy|MenuDelayTime 6"},
            {"diff other.themerc", "MenuDelayTime=5\n", 1,
             "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n"},
            {"diff other.themerc bad.themerc", "", 1,
             "DesktopColor: navy -> #3a6ea5\nMenuDelayTime: 6 -> -6\nPagingSpeed: 30 -> 1\n"},
            {"apply bad.themerc", "MenuDelayTime=5\n", 2},
            {"-q", "", 2},
            {"put A=1", "", 2},
            {"get -x WallPaper", "", 2},
            {"get", "", 2},
            {"-f", "", 2},
            {"complete values OpaqueMove", "", 0, "true\nfalse\n"},
            {"complete values PagingSpeed", "", 0},
            {"list paging*speed", "PagingSpeed=5\n", 0,
             "* PagingSpeed              5                    30                   Autopaging speed\n"},
            {"list -q BELT", "PagingBeltSize=00\n", 0,
             "  PagingBeltSize           00                   0                    "
             "Screen edge area for autopaging\n"},
            {"list DecorTheme", "", 0,
             "  DecorTheme               \"\"                   \"\"                   "
             "Decoration theme of windows and taskbar; empty: none\n"},
            {"list --json wallpaperp", "WallPaperPos=Tile\n", 0,
             "{\n  \"WallPaperPos\": {\"value\": \"Tile\", \"default\": \"Stretch\", \"differs\": true, "
             "\"set\": true, \"kind\": \"word\", \"values\": [\"Center\",\"Tile\",\"Stretch\"], "
             "\"meaning\": \"How to fit wallpaper to desktop\"},\n"
             "  \"WallPaperPeriod\": {\"value\": \"0\", \"default\": \"0\", \"differs\": false, "
             "\"set\": false, \"kind\": \"number\", \"minimum\": 0, \"maximum\": 3600, "
             "\"meaning\": \"Minutes from one wallpaper of the slide show to the next; 0: none\"}\n}\n"},
            {"list --json nobodys", "", 0, "{}\n"},
            {"get -- -x", "-x=a\x01\n", 0, "a\\x01\n"}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            home.write(themeFile, row.before);
            home.write("other.themerc"_s, "MenuDelayTime=6\nForeign=1\nDesktopColor=navy\n");
            home.write("bad.themerc"_s, "PagingSpeed=1\nMenuDelayTime=-6\n");
            WmListener listener;
            const ToolRun result = run(row.arguments);
            // What is wrong, or nothing, is one line.
            const bool isWrong = row.status == 2 || QByteArray(row.arguments).contains("Nobodys");
            QVERIFY2(result.status == row.status && result.errors.count('\n') == int(isWrong), row.arguments);
            QCOMPARE(result.out, row.out);
            QCOMPARE(home.read(themeFile), row.after.isNull() ? row.before : row.after);
            QCOMPARE(listener.takeUpdates().toLatin1(), row.updates);
        }
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
            {"MenuColor2"_s, "#123|light gray|qvlightray|Qt"_s, "#12|blueish||qvlightgray"_s, "a color"_s},
            {"TitleFont"_s, "Verdana-9|-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1"_s,
             "Verdana|Verdana-:bold|Verdana-x:bold|-10:bold|Noto-Sans-10:bold:italic|Verdana-10:fat|"_s,
             "a font"_s},
            {"WallPaper"_s, "/a|qaz-default|#a6caf0|a b.png"_s, "|a/b|..|#a6"_s, "an absolute path"_s},
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
        const QStringList keys = QString::fromLatin1(run("complete keys").out.trimmed()).split(u'\n');
        QCOMPARE(keys.size(), 103);
        QCOMPARE(keys.first() + keys.last(), "WallPaperSoundTheme"_s);
        const QStringList values = QString::fromUtf8(run(QStringList{"get"_s} + keys).out).split(u'\n');
        QStringList assignments{"set"_s};
        for (int i = 0; i < keys.size(); ++i)
            assignments.append(keys.at(i) + u'=' + values.at(i));
        const ToolRun result = run(assignments);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(run("diff").status, 0);
    }

    void meaningsAreInTheUsersLanguage()
    {
        const TemporaryHome home;
        const ScopedEnvironment language("LANGUAGE", "de");
        QVERIFY(
            run("list PagerColor2").out.contains("  Farbe am Ende des Verlaufs: Hintergrund des Pagers\n"));
    }

    void helpSaysWhatEachCommandTakes()
    {
        const TemporaryHome home;
        QByteArray usages;
        for (const QByteArray &command : run("complete commands").out.trimmed().split('\n'))
            usages += run({QLatin1String(command), "-h"_s}).out.split('\n').constFirst() + '\n';
        QCOMPARE(usages.replace("Usage: qaz-theme ", "").replace("[OPTION]... ", ""),
                 QByteArray("get KEY...\nset KEY=VALUE...\nunset KEY...\nlist [PATTERN]\ndiff [FILE] [FILE]\n"
                            "apply FILE\npack FILE.qaztheme\nunpack FILE.qaztheme\nbackups [FILE]\n"
                            "restore N|FILE\ncomplete commands|keys|values [KEY]\n"));
        QVERIFY(run("--help").out.contains("\n  get KEY...                   print values, one a line\n"));
    }

    void withoutADisplayNobodyIsTold()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        QCOMPARE(run("get PagingSpeed").errors, QByteArray());
        const ToolRun result = run("set PagingSpeed=5");
        QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=5\n"));
        QCOMPARE(result.errors, QByteArray("qaz-theme: No X display: nobody was told of the changes\n"));
        QCOMPARE(result.status, 0);
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
        const auto printed = [&](const QStringList &arguments) {
            QString out = QString::fromUtf8(run(arguments).out);
            out.replace(copies.at(0), "COPY"_s)
                .replace(copies.at(1), "OTHER"_s)
                .replace(home.path(), "HOME"_s);
            return out.replace(QRegularExpression("20[-0-9]{8} [:0-9]{8}"_s), "TIME"_s);
        };
        QCOMPARE(printed({"backups"_s}), "  1  TIME  HOME/.config/other  OTHER\n"
                                         "  2  TIME  HOME/.config/qaz/current.themerc  COPY\n"_s);
        QCOMPARE(printed({"backups"_s, ".config/other"_s, "--json"_s}),
                 "{\n  \"backups\": [{\"number\": 1, \"time\": \"TIME\", "
                 "\"original\": \"HOME/.config/other\", \"copy\": \"OTHER\"}]\n}\n"_s);

        WmListener listener;
        QVERIFY(run("restore 3").status == 2 && run("restore 0").status == 2);
        QCOMPARE(run("restore -n 2").status, 0); // the next one finds all as before
        QCOMPARE(printed({"restore"_s, "2"_s}),
                 "HOME/.config/qaz/current.themerc: restored from COPY\nPagingSpeed: 2 -> 1\n"_s);
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
        QCOMPARE(QDir(home.path(".config"_s)).entryList(QDir::AllEntries | QDir::Hidden).size(),
                 3); // with ..
        QVERIFY(!home.exists(".config/qaz/c"_s));
        QCOMPARE(run("backups").out.count('\n'), 2);
    }
};

QTEST_GUILESS_MAIN(TestQazTheme)
#include "tst_qaztheme.moc"
