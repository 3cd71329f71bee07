#include "platform/qazsoundtheme.h"
#include "tests/support/rows.h"
#include "tests/support/temporaryhome.h"

namespace {

QByteArray index(const QByteArray &inherits, const QByteArray &more = {})
{
    return "[Sound Theme]\nName=A theme\nInherits=" + inherits + "\nDirectories=plain, s,more,surround\n"
           + more
           + "\n[s]\nOutputProfile=stereo\n[more]\nOutputProfile=stereo\n[surround]\nOutputProfile=5.1\n";
}

struct SoundHome : TemporaryHome {
    QString write(const QString &path, const QByteArray &content = "sound") const
    {
        return TemporaryHome::write(path, content);
    }

    const ScopedEnvironment user{"XDG_DATA_HOME", QFile::encodeName(path("user"_s))},
        own{"QAZ_DATA_DIR", QFile::encodeName(path("data"_s))}, locale{"LC_ALL", "de_AT.UTF-8"};
};

QString sound(QazSoundTheme &theme, const char *name)
{
    char buffer[4096] = "untouched";
    const bool isFound = theme.getSound(name, "", "", buffer);
    const QString path = QFile::decodeName(buffer).remove("untouched"_s);
    return isFound == path.isEmpty() ? "contradiction"_s : path;
}

QString names()
{
    List<char> list;
    QString result = QLatin1String(QazSoundTheme::getThemesNames(&list) ? "" : "none");
    for (int i = 0; i < list.count(); ++i)
        result += QString::fromLocal8Bit(list.at(i)) + QLatin1Char(' ');
    return result;
}

} // namespace

class TestQazSoundTheme : public QObject
{
    Q_OBJECT
private slots:
    void listsInstalledThemes()
    {
        const SoundHome home;
        QCOMPARE(names(), "none"_s);
        for (const QString &shown : {"data/sounds/zebra"_s, "user/sounds/ähre"_s, "user/sounds/both"_s})
            home.write(shown + "/index.theme"_s, index(""));
        for (const QString &hidden : {"system/share/sounds/both"_s, "system/share/sounds/hidden"_s})
            home.write(hidden + "/index.theme"_s, index("", "Hidden=true"));
        home.write("user/sounds/no index/x.wav"_s);
        QCOMPARE(names(), "both zebra ähre "_s);
    }

    void findsSounds()
    {
        // Files with blanks between them; a star marks the one to find.
        for (const QStringList &row : rowsOf("platform/sounds.json"_s)) {
            const SoundHome home;
            home.write("user/sounds/a/index.theme"_s, index("missing,first,second"));
            home.write("user/sounds/first/index.theme"_s, index("a;grand"));
            for (const QString &theme :
                 {"user/sounds/second"_s, "user/sounds/grand"_s, "system/share/sounds/freedesktop"_s})
                home.write(theme + "/index.theme"_s, index("first"));
            QString expected;
            for (const QString &place : row[1].split(u' ')) {
                const QString path = home.write(QString(place).remove(u'*'), "sound");
                expected = place.startsWith(u'*') ? path : expected;
            }
            QazSoundTheme theme("a");
            QVERIFY(theme.load());
            QVERIFY2(sound(theme, "x-y") == expected, qPrintable(row.join(u'\n')));
        }
    }

    void namesAreKnownOnceLoaded()
    {
        const SoundHome home;
        home.write("user/sounds/dir/index.theme"_s, index("", "Name[de]=Glänzend\nName[fr]=Autre"));
        const QString oga = home.write("user/sounds/dir/s/x.oga"_s);
        QazSoundTheme theme("dir");
        home.write("data/sounds/x.wav"_s);
        home.write("data/sounds/.wav"_s);
        QCOMPARE(theme.getName() + sound(theme, "x").toLatin1(), "dir"); // not loaded
        QVERIFY(theme.load());
        QCOMPARE(QString::fromLocal8Bit(theme.getName()), "Glänzend"_s);
        QCOMPARE(theme.getThemeName(), "dir");
        QCOMPARE(QFile::decodeName(theme.getPath()) + "/s/x.oga"_s, oga);
        QCOMPARE(sound(theme, "") + sound(theme, "../s/x"), QString());
        const QString wav = home.write("user/sounds/dir/s/x.wav"_s);
        QCOMPARE(sound(theme, "x"), oga);
        QVERIFY(theme.load());
        QCOMPARE(sound(theme, "x"), wav);
        home.write("user/sounds/dir/index.theme"_s, index("a"));
        QVERIFY(theme.load());
        QCOMPARE(theme.getName(), "A theme");
    }

    void refusesBrokenThemes()
    {
        const SoundHome home;
        home.makeDirectory("user/sounds/pipe"_s);
        home.makeFifo("user/sounds/pipe/index.theme"_s);
        home.write("user/sounds/directory/index.theme/x.wav"_s);
        for (const QString &place : {"sounds"_s, "."_s, "sounds/good"_s})
            home.write("user/"_s + place + "/index.theme"_s, index(""));
        for (const char *name : {"pipe", "directory", "missing", "", "..", "../sounds/good"})
            QVERIFY2(!QazSoundTheme(name).load(), name);

        home.write("user/sounds/a/s/x.wav"_s);
        for (const QStringList &row : rowsOf("platform/brokensounds.json"_s)) {
            const QByteArray content = row[1].toLatin1();
            home.write("user/sounds/a/index.theme"_s, content);
            QazSoundTheme theme("a");
            QVERIFY2(!theme.load(), qPrintable(row[0]));
            QCOMPARE(sound(theme, "x"), QString());
            QVERIFY(names().startsWith(QLatin1String("a "))); // the user learns of it when choosing it
        }
    }
};

QTEST_GUILESS_MAIN(TestQazSoundTheme)
#include "tst_qazsoundtheme.moc"
