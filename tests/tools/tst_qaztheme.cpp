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
        const std::pair<QByteArray, QString> files[] = {
            {file,
             "get OpaqueMove PagingSpeed Other SoundTheme|get Nobodys OpaqueMove|"
             "get --json Other OpaqueMove WallPaper|get -f other.themerc MenuDelayTime|set "
             "ScreenSaverDelay=0300 PagingSpeed=31|"
             "set ScreenSaverDelay=90 OpaqueMove=false MenuDelayTime=300|"
             "set ScreenSaverDelay=300 PagingSpeed=101 Other=2 WallPaper=a/b|set a=1 Other|"
             "set --force [x]=2 =2 A=a\nb|set -n ScreenSaverDelay=300|unset ScreenSaverDelay MenuDelayTime|"
             "unset -n ScreenSaverDelay|unset Other PagingSpeed|unset --force [x]"_s},
            {"",
             "set ArrangeWindowSpeed=0|set PagingSpeed=1 PagingSpeed=2|set --force Other=2|set --json "
             "PagingSpeed=2|"
             "-q set MenuDelayTime=2|-q|put A=1|get -x WallPaper|get|apply a b|get -f|restore 1|apply gone|"
             "diff gone|diff other.themerc .|diff other.themerc bad.themerc|-f . apply other.themerc|"
             "-f other.themerc/a set PagingSpeed=5|complete values OpaqueMove|complete values PagingSpeed|"
             "list DecorTheme|list --json nobodys"_s},
            {"PagingSpeed=9\nOpaqueMove=True\nMenuDelayTime=0300\n", "diff|list paging*speed"_s},
            {"MenuDelayTime=0300\nA=1\n", "diff -q|unset MenuDelayTime A --force|apply other.themerc|"
                                          "apply bad.themerc|diff other.themerc|list -q DELAYTIME"_s},
            {"-x=a\x01\nOwn=\nWallPaperPos=Tile\n", "get -- -x|get Own|list --json wallpaperpos"_s}};
        QByteArray transcript;
        for (const auto &[before, calls] : files) {
            for (const QString &arguments : calls.split(u'|')) {
                const TemporaryHome home;
                home.write(themeFile, before);
                home.write("other.themerc"_s, "MenuDelayTime=6\nForeign=1\nDesktopColor=navy\n");
                home.write("bad.themerc"_s, "PagingSpeed=1\nMenuDelayTime=-6\n");
                WmListener listener;
                transcript += run(arguments).transcript();
                if (home.read(themeFile) != before)
                    transcript += "file: " + home.read(themeFile).replace('\n', '|') + '\n';
                if (const QString updates = listener.takeUpdates(); !updates.isEmpty())
                    transcript += "told: " + updates.toUtf8() + '\n';
            }
        }
        compareWithFile(transcript, "qaz-theme.txt"_s);
    }

    void valuesThatFit()
    {
        const std::array<QString, 3> rows[] = {
            // the key, values that fit, and values that don't
            {"TaskbarHeight"_s, "21|280"_s, "20|281||x|30.5"_s},
            {"ScreenSaverDelay"_s, "0|90|59940"_s, "-1|59941"_s},
            {"DesktopIconSize"_s, "16|256"_s, "17|0"_s},
            {"LockerTTYLock"_s, "true|false|True"_s, "TRUE|1|yes|"_s},
            {"WallPaperPos"_s, "Center|Tile|Stretch"_s, "center|"_s},
            {"GradWindowMapStyle"_s, "Normal|BottomToTop"_s, "None"_s},
            {"MenuColor2"_s, "#123|light gray|qvlightray|Qt"_s, "#12|blueish||qvlightgray"_s},
            {"TitleFont"_s, "Verdana-9|-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1"_s,
             "Verdana|Verdana-:bold|Verdana-x:bold|-10:bold|Noto-Sans-10:bold:italic|Verdana-10:fat|"_s},
            {"WallPaper"_s, "/a|qaz-default|#a6caf0|a b.png"_s, "|a/b|..|#a6"_s},
            {"OpenSound"_s, "/a.wav|a.wav|window-new||"_s, "../a.wav|a\nb"_s},
            {"DecorTheme"_s, "Slate||"_s, "../Slate|..|a\tb"_s},
            {"IconTheme"_s, "qaz-tirsk"_s, "|/x"_s}};
        QByteArray transcript;
        for (const auto &[key, good, bad] : rows) {
            const TemporaryHome home;
            const auto set = [key = key](QString values) {
                return run(("set|"_s + key + u'=' + values.replace(u'|', u'|' + key + u'=')).split(u'|'));
            };
            QCOMPARE(set(good).status, 0);
            const QString before = home.fingerprint();
            transcript += set(bad).transcript();
            QCOMPARE(home.fingerprint(), before);
        }
        compareWithFile(transcript, "values.txt"_s);
    }

    void everyKeyTakesItsDefault()
    {
        const TemporaryHome home;
        const ScopedEnvironment language("LANGUAGE", "de"); // the meanings are found in a catalogue
        compareWithFile(run("list --json"_s).out, "keys.json"_s);
        const QStringList keys = run("complete keys"_s).lines();
        const QStringList values = QString::fromUtf8(run(QStringList{"get"_s} + keys).out).split(u'\n');
        QStringList assignments{"set"_s};
        for (int i = 0; i < keys.size(); ++i)
            assignments.append(keys.at(i) + u'=' + values.at(i));
        const ToolRun result = run(assignments);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(run("diff"_s).status, 0);
    }

    void helpSaysWhatEachCommandTakes()
    {
        const TemporaryHome home;
        QByteArray help = run("-h"_s).out;
        for (const QString &command : run("complete commands"_s).lines()) {
            help += run({command, "--help"_s}).out;
            help.truncate(help.lastIndexOf("Options:\n"));
        }
        compareWithFile(help, "help.txt"_s);
        QVERIFY(QRegularExpression("^qaz-theme \\d+\\.\\d+\\.\\d+-\\d+\n$"_s)
                    .match(QString::fromUtf8(run("--version"_s).out))
                    .hasMatch());
    }

    void withoutADisplayNobodyIsTold()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        compareWithFile(transcriptOf("get PagingSpeed\nset -n PagingSpeed=5\nset PagingSpeed=5\n"
                                     "set PagingSpeed=5\nset -q PagingSpeed=6\nunset PagingSpeed"_s),
                        "nodisplay.txt"_s);
    }

    void failuresAreTold()
    {
        const TemporaryHome home;
        QVERIFY(home.makeDirectory(themeFile));
        home.write("a"_s, "PagingSpeed=5\n");
        compareWithFile(transcriptOf("get PagingSpeed\nset PagingSpeed=5\nunset PagingSpeed\nlist\ndiff\n"
                                     "diff a a\napply a\npack b\nunpack a"_s),
                        "failures.txt"_s);
    }

    void copiesAreListedAndPutBack()
    {
        const TemporaryHome home;
        const ScopedEnvironment zone("TZ", "TEST-5:30");
        const QString state = ".local/state/qaz/backup/"_s;
        const QByteArray place = home.path().toUtf8();
        home.write(themeFile, "PagingSpeed=2\n# new\n");
        home.write(state + "20260102T030405.678Z-a"_s, "PagingSpeed=1\n");
        home.write(state + "20261231T230000.000Z-b"_s, "other");
        home.write(state + "manifest"_s, "20260102T030405.678Z-a\t" + place + "/.config/qaz/current.themerc\n"
                                             + "20261231T230000.000Z-b\t" + place + "/b\n");
        WmListener listener;
        QByteArray transcript;
        const QString calls
            = "backups|backups .config/qaz/current.themerc --json|restore 3|restore 0|restore x|"
              "restore -n 2|restore 2|restore 2 --json|restore -q .config/qaz/current.themerc|"
              "restore .local/state/qaz/backup/20261231T230000.000Z-b"_s;
        for (const QString &arguments : calls.split(u'|')) {
            transcript += run(arguments).transcript();
            transcript += home.read(themeFile).replace('\n', '|') + home.read("b"_s) + '\n';
        }
        QVERIFY(QFile::remove(home.path("b"_s)) && home.makeDirectory("b"_s));
        transcript += run("restore b"_s).transcript() + "told: " + listener.takeUpdates().toUtf8() + '\n';
        compareWithFile(transcript, "backups.txt"_s);
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
        QCOMPARE(run("backups"_s).out.count('\n'), 2);
    }
};

QTEST_GUILESS_MAIN(TestQazTheme)
#include "tst_qaztheme.moc"
