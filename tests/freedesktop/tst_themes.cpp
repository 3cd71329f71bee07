#include "freedesktop/cursorfiles.h"
#include "freedesktop/iconfiles.h"
#include "freedesktop/iconthemeindex.h"
#include "freedesktop/sounddirectories.h"
#include "freedesktop/themedirectories.h"
#include "tests/support/rows.h"
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
        // LC_ALL, LC_MESSAGES, LANG, and the spellings.
        for (const QStringList &row : rowsOf("freedesktop/locales.json"_s)) {
            const ScopedEnvironment all("LC_ALL", row[0].toLatin1()),
                messages("LC_MESSAGES", row[1].toLatin1()), lang("LANG", row[2].toLatin1());
            QCOMPARE(localeVariants().join(u'|'), row[3]);
        }
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
        // What is special, the file before, the name (empty: none), and the file after.
        for (const QStringList &row : rowsOf("freedesktop/inherits.json"_s)) {
            const QByteArray after = withInherits(row[1].toUtf8(), row[2].toUtf8());
            QCOMPARE(QString::fromUtf8(after), row[3]);
            QCOMPARE(QString::fromUtf8(parseIconThemeIndex(after).inherits.join(',')), row[2]);
        }
        const IconThemeIndex index = parseIconThemeIndex(
            "[Icon Theme]\nInherits= , A;B x,\n[X]\nInherits=z\n");
        QCOMPARE(index.inherits.join('|') + ' ' + index.cursorInherits.join('|'), QByteArray("A|B x A|B|x"));
    }

    void matchesSizes()
    {
        // A directory's lines, and how far it is from 32 pixels; -1: a match.
        for (const QStringList &row : rowsOf("freedesktop/sizes.json"_s)) {
            const auto found = parseIconThemeIndex("[Icon Theme]\nDirectories=a,unknown\n[a]\n"
                                                   + row[0].toUtf8())
                                   .directories;
            QCOMPARE(found.size(), 1);
            QCOMPARE(QString::number(sizeDistance(found.first(), 32)), row[1]);
        }
    }
};

QTEST_GUILESS_MAIN(TestThemes)
#include "tst_themes.moc"
