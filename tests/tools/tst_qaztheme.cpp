#include "settings/backup.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"
#include "tests/support/wmlistener.h"
#include "tests/tools/toolrun.h"

namespace {

/// The content of a file beside this one, which was read by eye.
QByteArray expected(const char *name)
{
    QFile file(QStringLiteral(QAZ_SOURCE_DIR "/tests/tools/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList lines(const QByteArray &text)
{
    return QString::fromUtf8(text).split(u'\n');
}

} // namespace

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
            QByteArray out = "";   // and what is wrong
            QByteArray after = {}; // null: as before
            QByteArray updates = "";
        } rows[] = {
            {"get OpaqueMove PagingSpeed Other SoundTheme", file, 0, "TRUE\n30\n1\n\n"},
            {"get Nobodys OpaqueMove", file, 1, "TRUE\nqaz-theme: Nobodys is not set and has no default\n"},
            {"get Own", "Own=\n", 0, "\n"},
            {"get --json Other OpaqueMove WallPaper", file, 0, // in the order of the pages
             "{\n  \"WallPaper\": \"qaz-default\",\n  \"OpaqueMove\": \"TRUE\",\n  \"Other\": \"1\"\n}\n"},
            {"set ScreenSaverDelay=0300 PagingSpeed=31", file, 0,
             "ScreenSaverDelay: 90 -> 300\nPagingSpeed: 30 -> 31\n",
             "# mine\nScreenSaverDelay=300\nOther=1\nOpaqueMove=TRUE\nPagingSpeed=31\n[g]\nPagingSpeed=1\n",
             "ScreenSaverDelay 300|PagingSpeed 31"},
            {"set ScreenSaverDelay=90 OpaqueMove=false MenuDelayTime=300", file, 0}, // all are equal
            {"set ArrangeWindowSpeed=0", "", 0, "ArrangeWindowSpeed: 0 -> 0\n", "ArrangeWindowSpeed=0\n",
             "ArrangeWindowSpeed 0"}, // its default differs between load and save
            {"set PagingSpeed=1 PagingSpeed=2", "", 0, "PagingSpeed: 30 -> 2\n", "PagingSpeed=2\n",
             "PagingSpeed 2"},
            {"set ScreenSaverDelay=300 PagingSpeed=101 Other=2 WallPaper=a/b", file, 2,
             "qaz-theme: PagingSpeed can't be '101': it takes a whole number from 0 to 100\n"
             "qaz-theme: Other is no known key; --force takes it all the same\n"
             "qaz-theme: WallPaper can't be 'a/b': it takes an absolute path or a name without \"/\"\n"},
            {"set a=1 Other", file, 2, "qaz-theme: 'Other' is not KEY=VALUE\n"},
            {"set --force Other=2", "", 0, "Other:  -> 2\n", "Other=2\n", "Other 2"},
            {"set --force [x]=2 =2 A=a\nb", file, 2,
             "qaz-theme: '[x]' can't be a key of a theme file\nqaz-theme: '' can't be a key of a theme file\n"
             "qaz-theme: A can't be 'a\\nb': a value is one line of at most 4096 characters\n"},
            {"set -n ScreenSaverDelay=300", file, 0, "ScreenSaverDelay: 90 -> 300\n"},
            {"-q set MenuDelayTime=2", "", 0, "", "MenuDelayTime=2\n", "MenuDelayTime 2"},
            {"set --json PagingSpeed=2", "", 0,
             "{\n  \"PagingSpeed\": {\"value\": \"2\", \"before\": \"30\"}\n}\n", "PagingSpeed=2\n",
             "PagingSpeed 2"},
            {"unset ScreenSaverDelay MenuDelayTime", file, 0, "ScreenSaverDelay: 90 -> 600\n",
             "# mine\nOther=1\nOpaqueMove=TRUE\n[g]\nPagingSpeed=1\n", "ScreenSaverDelay 600"},
            {"unset MenuDelayTime A --force", "MenuDelayTime=300\nA=1\n", 0, "A: 1 -> \n", ""},
            {"unset -n ScreenSaverDelay", file, 0, "ScreenSaverDelay: 90 -> 600\n"},
            {"unset Other PagingSpeed", file, 2,
             "qaz-theme: Other is no known key; --force takes it all the same\n"},
            {"unset --force [x]", file, 2, "qaz-theme: [x] is no known key; --force takes it all the same\n"},
            {"diff", "PagingSpeed=9\nOpaqueMove=True\nMenuDelayTime=0300\n", 1, "PagingSpeed: 30 -> 9\n"},
            {"diff -q", "MenuDelayTime=0300\n", 0},
            {"apply other.themerc", "Other=2\nMenuDelayTime=5\n", 0,
             "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n",
             "Other=2\nMenuDelayTime=6\nDesktopColor=navy\n", "DesktopColor navy|MenuDelayTime 6"},
            {"diff other.themerc", "MenuDelayTime=5\n", 1,
             "DesktopColor: #3a6ea5 -> navy\nMenuDelayTime: 5 -> 6\n"},
            {"diff other.themerc bad.themerc", "", 1,
             "DesktopColor: navy -> #3a6ea5\nMenuDelayTime: 6 -> -6\nPagingSpeed: 30 -> 1\n"},
            {"apply bad.themerc", "MenuDelayTime=5\n", 2,
             "qaz-theme: MenuDelayTime can't be '-6': it takes a whole number from 0 to 3000\n"},
            {"-q", "", 2, "qaz-theme: a command is missing; see qaz-theme --help\n"},
            {"put A=1", "", 2, "qaz-theme: unknown command 'put'; see qaz-theme --help\n"},
            {"get -x WallPaper", "", 2, "qaz-theme: unknown option '-x'; see qaz-theme --help\n"},
            {"get", "", 2,
             "qaz-theme: wrong number of arguments for get: it takes KEY...; see qaz-theme --help\n"},
            {"apply a b", "", 2,
             "qaz-theme: wrong number of arguments for apply: it takes FILE; see qaz-theme --help\n"},
            {"get -f", "", 2, "qaz-theme: -f needs a file; see qaz-theme --help\n"},
            {"get -f other.themerc MenuDelayTime", "", 0, "6\n"},
            {"restore 1", "", 2, "qaz-theme: There is no copy '1'; see qaz-theme backups\n"},
            {"apply gone", "", 3, "qaz-theme: gone does not exist\n"},
            {"diff gone", "", 3, "qaz-theme: gone does not exist\n"},
            {"diff other.themerc .", "", 3, "qaz-theme: Can't read .: Is a directory\n"},
            {"-f . apply other.themerc", "", 3, "qaz-theme: Can't read HOME: Is a directory\n"},
            {"-f other.themerc/a set PagingSpeed=5", "", 3,
             "qaz-admin-theme: Can't write HOME/other.themerc/a: Can't create directory HOME/other.themerc\n"
             "qaz-theme: HOME/other.themerc/a does not hold the new values\n"},
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
            {"list --json wallpaperpos", "WallPaperPos=Tile\n", 0,
             "{\n  \"WallPaperPos\": {\"value\": \"Tile\", \"default\": \"Stretch\", \"differs\": true, "
             "\"set\": true, \"kind\": \"word\", \"values\": [\"Center\",\"Tile\",\"Stretch\"], "
             "\"meaning\": \"How to fit wallpaper to desktop\"}\n}\n"},
            {"list --json nobodys", "", 0, "{}\n"},
            {"get -- -x", "-x=a\x01\n", 0, "a\\x01\n"}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            home.write(themeFile, row.before);
            home.write("other.themerc"_s, "MenuDelayTime=6\nForeign=1\nDesktopColor=navy\n");
            home.write("bad.themerc"_s, "PagingSpeed=1\nMenuDelayTime=-6\n");
            WmListener listener;
            const ToolRun result = run(row.arguments);
            QVERIFY2(result.status == row.status, row.arguments);
            QCOMPARE(result.text(), row.out);
            QCOMPARE(home.read(themeFile), row.after.isNull() ? row.before : row.after);
            QCOMPARE(listener.takeUpdates().toLatin1(), row.updates);
        }
    }

    void valuesThatFit()
    {
        const QString path = "an absolute path or a name without \"/\""_s;
        const std::array<QString, 4> rows[] = {
            // the key, values that fit, values that don't, and what is said about these
            {"TaskbarHeight"_s, "21|280"_s, "20|281||x|30.5"_s, "a whole number from 21 to 280"_s},
            {"ScreenSaverDelay"_s, "0|90|59940"_s, "-1|59941"_s, "a whole number from 0 to 59940"_s},
            {"DesktopIconSize"_s, "16|256"_s, "17|0"_s, "one of 16, 22, 32, 48, 64, 96, 128, 256"_s},
            {"LockerTTYLock"_s, "true|false|True"_s, "TRUE|1|yes|"_s, "one of true, false"_s},
            {"WallPaperPos"_s, "Center|Tile|Stretch"_s, "center|"_s, "one of Center, Tile, Stretch"_s},
            {"MenuColor2"_s, "#123|light gray|qvlightray|Qt"_s, "#12|blueish||qvlightgray"_s,
             "a color: #rrggbb or a name such as \"navy\""_s},
            {"TitleFont"_s, "Verdana-9|-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1"_s,
             "Verdana|Verdana-:bold|Verdana-x:bold|-10:bold|Noto-Sans-10:bold:italic|Verdana-10:fat|"_s,
             "a font such as \"Verdana-10:normal\", with :normal or :bold, and :italic"_s},
            {"WallPaper"_s, "/a|qaz-default|#a6caf0|a b.png"_s, "|a/b|..|#a6"_s, path},
            {"OpenSound"_s, "/a.wav|a.wav|window-new||"_s, "../a.wav|a\nb"_s, path},
            {"DecorTheme"_s, "Slate||"_s, "../Slate|..|a\tb"_s, "the name of a theme"_s},
            {"IconTheme"_s, "qaz-tirsk"_s, "|/x"_s, "the name of a theme"_s}};
        for (const auto &[key, good, bad, allowed] : rows) {
            const TemporaryHome home;
            QStringList fitting{"set"_s}, wrong{"set"_s};
            QString errors;
            for (const QString &value : good.split(u'|'))
                fitting.append(key + u'=' + value);
            for (const QString &value : bad.split(u'|')) {
                wrong.append(key + u'=' + value);
                errors += "qaz-theme: %1 can't be '%2': it takes %3\n"_s.arg(key, value, allowed);
            }
            QCOMPARE(run(fitting).status, 0);
            const QString before = home.fingerprint();
            QCOMPARE(QString::fromUtf8(run(wrong).text()).replace("\\n"_s, "\n"_s).replace("\\x09"_s, "\t"_s),
                     errors);
            QCOMPARE(home.fingerprint(), before);
        }
    }

    void everyKeyTakesItsDefault()
    {
        const TemporaryHome home;
        QCOMPARE(lines(run("list --json").out), lines(expected("keys.json")));
        const QStringList keys = lines(run("complete keys").out.trimmed());
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
        QByteArray help = run("-h").out;
        for (const QString &command : lines(run("complete commands").out.trimmed())) {
            help += run({command, "--help"_s}).out;
            help.truncate(help.lastIndexOf("Options:\n"));
        }
        QCOMPARE(lines(help), lines(expected("help.txt")));
        QVERIFY(QRegularExpression("^qaz-theme \\d+\\.\\d+\\.\\d+-\\d+\n$"_s)
                    .match(QString::fromUtf8(run("--version").out))
                    .hasMatch());
    }

    void withoutADisplayNobodyIsTold()
    {
        const TemporaryHome home;
        const ScopedEnvironment display("DISPLAY", {});
        const QByteArray nobody = "qaz-theme: No X display: nobody was told of the changes\n";
        const std::pair<const char *, QByteArray> rows[] = {
            {"get PagingSpeed", ""},   {"set -n PagingSpeed=5", ""}, {"set PagingSpeed=5", nobody},
            {"set PagingSpeed=5", ""}, {"set -q PagingSpeed=6", ""}, {"unset PagingSpeed", nobody}};
        for (const auto &[arguments, errors] : rows) {
            const ToolRun result = run(arguments);
            QCOMPARE(result.errors, errors);
            QCOMPARE(result.status, 0);
        }
    }

    void failuresAreTold()
    {
        const TemporaryHome home;
        QVERIFY(home.makeDirectory(themeFile));
        home.write("a"_s, "PagingSpeed=5\n");
        for (const char *arguments : {"get PagingSpeed", "set PagingSpeed=5", "unset PagingSpeed", "list",
                                      "diff", "diff a a", "apply a", "pack b", "unpack a"}) {
            const ToolRun result = run(arguments);
            QCOMPARE(result.text(),
                     QByteArray("qaz-theme: Can't read HOME/.config/qaz/current.themerc: Is a directory\n"));
            QCOMPARE(result.status, 3);
        }
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
        const auto printed = [&](const char *arguments) {
            return run(arguments).text().replace("HOME/.local/state/qaz/backup", "STATE");
        };
        QCOMPARE(printed("backups"),
                 QByteArray("  1  2027-01-01 04:30:00  HOME/b  STATE/20261231T230000.000Z-b\n"
                            "  2  2026-01-02 08:34:05  HOME/.config/qaz/current.themerc  "
                            "STATE/20260102T030405.678Z-a\n"));
        QCOMPARE(printed("backups .config/qaz/current.themerc --json"),
                 QByteArray("{\n  \"backups\": [{\"number\": 2, \"time\": \"2026-01-02 08:34:05\", "
                            "\"original\": \"HOME/.config/qaz/current.themerc\", "
                            "\"copy\": \"STATE/20260102T030405.678Z-a\"}]\n}\n"));

        WmListener listener;
        for (const char *none : {"restore 3", "restore 0", "restore x"})
            QCOMPARE(run(none).text(), "qaz-theme: There is no copy '" + QByteArray(none).mid(8)
                                           + "'; see qaz-theme backups\n");
        const QByteArray restored
            = "HOME/.config/qaz/current.themerc: restored from STATE/20260102T030405.678Z-a\n";
        QCOMPARE(printed("restore -n 2"), restored + "PagingSpeed: 2 -> 1\n");
        QCOMPARE(printed("restore 2"), restored + "PagingSpeed: 2 -> 1\n");
        QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=1\n"));
        QCOMPARE(listener.takeUpdates(), "PagingSpeed 1"_s);
        QCOMPARE(home.backups(), QByteArrayList({"PagingSpeed=1\n", "PagingSpeed=2\n# new\n", "other"}));
        // What was there a moment ago is the newest copy of the file.
        QCOMPARE(run({"restore"_s, "-q"_s, home.path(themeFile)}).out, QByteArray());
        QCOMPARE(home.read(themeFile), QByteArray("PagingSpeed=2\n# new\n"));
        QCOMPARE(printed("restore .local/state/qaz/backup/20261231T230000.000Z-b --json"),
                 QByteArray("{}\n"));
        QCOMPARE(home.read("b"_s), QByteArray("other"));
        QVERIFY(QFile::remove(home.path("b"_s)) && home.makeDirectory("b"_s));
        QCOMPARE(printed("restore b"), QByteArray("qaz-theme: Can't restore HOME/b: Is a directory\n"));
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
