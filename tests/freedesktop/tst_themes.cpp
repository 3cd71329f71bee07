#include "freedesktop/cursorfiles.h"
#include "freedesktop/iconfiles.h"
#include "freedesktop/iconthemeindex.h"
#include "freedesktop/sounddirectories.h"
#include "freedesktop/themedirectories.h"
#include "tests/support/temporaryhome.h"

class TestThemes : public QObject
{
    Q_OBJECT
private slots:
    void findsCursorsAsXcursorDoes()
    {
        const TemporaryHome home;
        const ScopedEnvironment path("XCURSOR_PATH", QFile::encodeName(home.path("extra"_s)) + ":~/.icons");
        const ScopedEnvironment data("QAZ_DATA_DIR", "/none");
        QVERIFY(home.makeDirectory("extra/OnPath/cursors"_s) && home.makeDirectory("extra/A/cursors"_s)
                && home.makeDirectory(".local/share/icons/InData/cursors"_s));
        home.write(".icons/A/cursors/left_ptr"_s, "x");
        home.write(".icons/A/index.theme"_s, "[Icon Theme]\nInherits=A;B, C\n");
        home.write(".icons/B/index.theme"_s, "[Icon Theme]\nInherits=A\n");
        home.write(".icons/C/cursors/watch"_s, "x");
        home.write(".icons/File/cursors"_s, "not a directory");
        home.write(".icons/default/cursors/xterm"_s, "x");
        const QByteArray icons = QFile::encodeName(home.path(".icons/"_s));
        ThemeDirectories directories(cursorSearchPath());
        QCOMPARE(cursorThemeNames(directories), (QSet<QByteArray>{"A", "C", "InData", "OnPath", "default"}));
        QCOMPARE(cursorFile(directories, "B", "left_ptr"), icons + "A/cursors/left_ptr");
        QCOMPARE(cursorFile(directories, "A", "watch"), icons + "C/cursors/watch");
        QCOMPARE(cursorFile(directories, "A", "xterm"), icons + "default/cursors/xterm");
        QCOMPARE(cursorFile(directories, "A", "nowhere"), QByteArray());
        QCOMPARE(cursorFile(directories, "../icons/A", "left_ptr"), QByteArray());
    }

    void theStandardsSayWhereThemesStand()
    {
        const TemporaryHome home;
        const ScopedEnvironment data("QAZ_DATA_DIR", "/root");
        const ScopedEnvironment cursors("XCURSOR_PATH", "~/.icons:/a/:/a:://");
        const QByteArray user = QFile::encodeName(home.path());
        // XDG_DATA_HOME, XDG_DATA_DIRS, the user's directory, and the others' with a star for the kind.
        const std::tuple<const char *, const char *, QByteArray, QByteArray> rows[] = {
            {"/h/", "/b/:relative://c:/b:", "/h", "/b/*:/c/*:"},
            {"./h", "b:./c:..", user + "/.local/share", ""},
            {"", "", user + "/.local/share", "/usr/local/share/*:/usr/share/*:"}};
        for (const auto &[dataHome, dataDirs, first, others] : rows) {
            const ScopedEnvironment home("XDG_DATA_HOME", dataHome), dirs("XDG_DATA_DIRS", dataDirs);
            QCOMPARE(iconSearchPath().join(':'), user + "/.icons:" + first
                                                     + "/icons:" + QByteArray(others).replace('*', "icons")
                                                     + "/usr/share/pixmaps:/root/icons");
            QCOMPARE(cursorSearchPath().join(':'), user + "/.icons:/a:/:" + first + "/icons:/root/icons");
            QCOMPARE(soundBaseDirectories().join(u':').toUtf8(),
                     first + "/sounds:" + QByteArray(others).replace('*', "sounds") + "/root/sounds");
        }
    }

    void localesAreSpelledInSeveralWays()
    {
        QStringList variants;
        for (const QByteArrayList &names : {QByteArrayList{"de_AT.UTF-8@euro", "fr", "es"},
                                            {"", "fr.x", "es"},
                                            {"", "", "es_MX@euro"},
                                            {"../x", "", ""}}) {
            const ScopedEnvironment all("LC_ALL", names[0]), messages("LC_MESSAGES", names[1]),
                lang("LANG", names[2]);
            variants += localeVariants();
        }
        QCOMPARE(variants.join(u'|'),
                 "de_AT@euro|de_AT|de@euro|de|C||fr|C||es_MX@euro|es_MX|es@euro|es|C||C|"_s);
    }

    void anIndexIsOneSmallRegularFile()
    {
        const TemporaryHome home;
        const QByteArray index = "[Icon Theme]\nInherits=parent\nDirectories=\n";
        ThemeDirectories directories(
            {QFile::encodeName(home.path("a"_s)), QFile::encodeName(home.path("b"_s))});
        for (const char *theme :
             {"b/fifo", "b/large", "b/directory", "a/directory/index.theme", "a/fifo", "b/none"})
            QVERIFY(home.makeDirectory(QLatin1String(theme)));
        home.makeFifo("a/fifo/index.theme"_s);
        home.write("a/large/index.theme"_s, index + QByteArray(1024 * 1024, '#'));
        for (const char *theme : {"fifo", "large", "directory"}) {
            home.write("b/%1/index.theme"_s.arg(QLatin1String(theme)), index);
            const QByteArrayList locations = directories.locations(theme);
            QCOMPARE(locations.size(), 2);
            const IconThemeIndex *found = directories.index(locations);
            QVERIFY2(found && found->hasDirectories && found->inherits == QByteArrayList{"parent"}, theme);
        }
        QVERIFY(!directories.index(directories.locations("none")));
        for (const char *name : {"", ".", "..", "../a", "missing"})
            QCOMPARE(directories.locations(name), QByteArrayList());
    }

    void oneThemeIsInherited()
    {
        // The file before, the name (empty: none), and the file after.
        const std::tuple<QByteArray, QByteArray, QByteArray> rows[] = {
            {"", "A", "[Icon Theme]\nInherits=A\n"},
            {"# c\r\n[Icon Theme]\r\n Inherits = B, C\r\nX=1\r\n[Other]\r\nInherits=z\r\nInherits=y\r\n", "A",
             "# c\r\n[Icon Theme]\r\n Inherits = A\r\nX=1\r\n[Other]\r\nInherits=z\r\nInherits=y\r\n"},
            {"[Icon Theme]\nInherits=B\nName=D\nInherits=C\n", "A", "[Icon Theme]\nName=D\nInherits=A\n"},
            {"[Icon Theme]\nInherits=B\nName=D\nInherits=C\n", "", "[Icon Theme]\nName=D\n"}};
        for (const auto &[before, name, after] : rows) {
            QCOMPARE(withInherits(before, name), after);
            QCOMPARE(parseIconThemeIndex(after).inherits.join(','), name);
        }
        const IconThemeIndex index = parseIconThemeIndex(
            "[Icon Theme]\nInherits= , A;B x,\n[X]\nInherits=z\n");
        QCOMPARE(index.inherits.join('|') + ' ' + index.cursorInherits.join('|'), QByteArray("A|B x A|B|x"));
    }

    void matchesSizes()
    {
        QStringList distances; // from 32 pixels; -1: a match
        for (const char *group :
             {"Type=Fixed\nSize=32", "Type=Fixed\nSize=30", "Type=Scalable\nSize=64\nMinSize=8\nMaxSize=512",
              "Type=Scalable\nSize=64\nMinSize=40", "Size=30" /* the threshold is 2 */,
              "Size=24\nThreshold=3", "Type=Fixed\nSize=32\nScale=2",
              "Type=Scalable\nSize=1\nMaxSize=64\nScale=2", "Size=2147483647\nScale=2147483647"}) {
            const auto found = parseIconThemeIndex(QByteArray("[Icon Theme]\nDirectories=a,unknown\n[a]\n")
                                                   + group)
                                   .directories;
            QCOMPARE(found.size(), 1);
            distances += QString::number(sizeDistance(found.first(), 32));
        }
        QCOMPARE(distances.join(u' '), "-1 2 -1 8 -1 5 32 0 4611686009837453283"_s);
    }
};

QTEST_GUILESS_MAIN(TestThemes)
#include "tst_themes.moc"
