#include "platform/qazsoundtheme.h"
#include "tests/support/rows.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <sys/stat.h>

namespace {

QByteArray index(const QByteArray &inherits, const QByteArray &more = {})
{
    return "[Sound Theme]\nName=A theme\nInherits=" + inherits + "\nDirectories=plain, s,more,surround\n"
           + more
           + "\n[s]\nOutputProfile=stereo\n[more]\nOutputProfile=stereo\n[surround]\nOutputProfile=5.1\n";
}

/// Sounds directories of the user, the system and the desktop's own.
class SoundFiles
{
public:
    /// Writes a file at a \a place that begins with "user/", "system/" or "own/"; returns its absolute path.
    QString write(QByteArray place, const QByteArray &content = "sound") const
    {
        place.replace("user/", ".local/share/sounds/").replace("system/", "system/share/sounds/");
        return m_home.write(QString::fromUtf8(place.replace("own/", "data/sounds/")), content);
    }

private:
    const TemporaryHome m_home;
    const ScopedEnvironment m_dataRoot{"QAZ_DATA_DIR", QFile::encodeName(m_home.path("data"_s))};
    const ScopedEnvironment m_locale{"LC_ALL", "de_AT.UTF-8"};
};

QString sound(QazSoundTheme &theme, const char *name)
{
    char buffer[4096] = "untouched";
    const QString expected = QLatin1String(theme.getSound(name, "", "", buffer) ? buffer : "untouched");
    return expected == QFile::decodeName(buffer) ? QString(expected).remove("untouched"_s)
                                                 : "contradiction"_s;
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
        const SoundFiles files;
        QCOMPARE(names(), "none"_s);
        for (const char *shown : {"own/zebra", "user/ähre", "user/both"})
            files.write(shown + QByteArray("/index.theme"), index(""));
        for (const char *hidden : {"system/both", "system/hidden"})
            files.write(hidden + QByteArray("/index.theme"), index("", "Hidden=true"));
        files.write("user/no index/x.wav");
        QCOMPARE(names(), "both zebra ähre "_s);
    }

    void findsSounds()
    {
        // Files with blanks between them; a star marks the one to find.
        for (const QStringList &row : rowsOf("platform/sounds.json"_s)) {
            const SoundFiles files;
            files.write("user/a/index.theme", index("missing,first,second"));
            files.write("user/first/index.theme", index("a;grand"));
            for (const char *theme : {"user/second", "user/grand", "system/freedesktop"})
                files.write(theme + QByteArray("/index.theme"), index("first"));
            QString expected;
            for (const QByteArray &place : row.at(1).toUtf8().split(' ')) {
                const QString path = files.write(QByteArray(place).replace('*', ""));
                if (place.startsWith('*'))
                    expected = path;
            }
            QazSoundTheme theme("a");
            QVERIFY(theme.load());
            QVERIFY2(sound(theme, "x-y") == expected, qPrintable(row.join(u'\n')));
        }
    }

    void namesAreKnownOnceLoaded()
    {
        const SoundFiles files;
        files.write("user/dir/index.theme", index("", "Name[de]=Glänzend\nName[fr]=Autre"));
        const QString oga = files.write("user/dir/s/x.oga");
        QazSoundTheme theme("dir");
        files.write("own/x.wav");
        files.write("own/.wav");
        QCOMPARE(theme.getName() + sound(theme, "x").toLatin1(), "dir"); // not loaded
        QVERIFY(theme.load());
        QCOMPARE(QString::fromLocal8Bit(theme.getName()), "Glänzend"_s);
        QCOMPARE(theme.getThemeName(), "dir");
        QCOMPARE(QFile::decodeName(theme.getPath()) + "/s/x.oga"_s, oga);
        QCOMPARE(sound(theme, "") + sound(theme, "../s/x"), QString());
        const QString wav = files.write("user/dir/s/x.wav");
        QCOMPARE(sound(theme, "x"), oga);
        QVERIFY(theme.load());
        QCOMPARE(sound(theme, "x"), wav);
        files.write("user/dir/index.theme", index("a"));
        QVERIFY(theme.load());
        QCOMPARE(theme.getName(), "A theme");
    }

    void refusesBrokenThemes()
    {
        const SoundFiles files;
        const QString pipe = QFileInfo(files.write("user/pipe/x.wav")).path() + "/index.theme"_s;
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        files.write("user/directory/index.theme/x.wav");
        for (const char *place : {"user/index.theme", "user/../index.theme", "user/good/index.theme"})
            files.write(place, index(""));
        for (const char *name : {"pipe", "directory", "missing", "", "..", "../sounds/good"})
            QVERIFY2(!QazSoundTheme(name).load(), name);

        files.write("user/a/s/x.wav");
        for (const QByteArray &content :
             {QByteArray(), QByteArray("[Icon Theme]\nDirectories=s\n"),
              QByteArray("[Sound Theme]\nName=a\nDirectories= , ;\n"),
              QByteArray("Directories=s\n[Sound Theme\nDirectories=x\n"),
              QByteArrayLiteral("\x00\xff[\xfe]\n=\n[Sound Theme]=Directories\n")}) {
            files.write("user/a/index.theme", content);
            QazSoundTheme theme("a");
            QVERIFY2(!theme.load(), content.constData());
            QCOMPARE(sound(theme, "x"), QString());
            QVERIFY(names().startsWith(QLatin1String("a "))); // the user learns of it when choosing it
        }
    }
};

QTEST_GUILESS_MAIN(TestQazSoundTheme)
#include "tst_qazsoundtheme.moc"
