#include <QtTest>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/qazsoundtheme.h"
#include "tests/support/environment.h"
#include "tests/support/temporaryhome.h"

namespace {

QByteArray index(const QByteArray &inherits, const QByteArray &more = {})
{
    return "[Sound Theme]\nName=A theme\nInherits=" + inherits + "\nDirectories=plain, s,more,surround\n"
           + more
           + "\n[s]\nOutputProfile=stereo\n[more]\nOutputProfile=stereo\n[surround]\nOutputProfile=5.1\n";
}

/// The path below the home for one that begins with "user/", "system/" or "own/", a sounds directory each.
QString place(const QString &path)
{
    const QString rest = path.mid(path.indexOf(QLatin1Char('/')));
    if (path.startsWith(QLatin1String("user/")))
        return QLatin1String(".local/share/sounds") + rest;
    return (path.startsWith(QLatin1String("own/")) ? QLatin1String("data/sounds")
                                                   : QLatin1String("system/share/sounds"))
           + rest;
}

QString sound(QazSoundTheme &theme, const char *name, const char *profile = "", const char *locale = "")
{
    std::array<char, 4096> buffer{};
    return theme.getSound(name, profile, locale, buffer.data()) ? QFile::decodeName(buffer.data())
                                                                : QString();
}

QStringList names()
{
    List<char> list;
    QStringList result;
    const bool found = QazSoundTheme::getThemesNames(&list);
    for (int i = 0; i < list.count(); ++i)
        result.append(QString::fromLocal8Bit(list.at(i)));
    return found == result.isEmpty() ? QStringList(QStringLiteral("wrong answer")) : result;
}

} // namespace

class TestQazSoundTheme : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_dataRoot = std::make_unique<ScopedEnvironment>("QAZ_DATA_DIR",
                                                         m_home->path(QStringLiteral("data")).toLocal8Bit());
        m_locale = std::make_unique<ScopedEnvironment>("LC_ALL", "de_AT.UTF-8");
    }

    void cleanup()
    {
        m_locale.reset();
        m_dataRoot.reset();
        m_home.reset();
    }

    void listsInstalledThemes()
    {
        QCOMPARE(names(), QStringList());
        m_home->write(place(QStringLiteral("own/zebra/index.theme")), index(""));
        m_home->write(place(QStringLiteral("user/ähre/index.theme")), index(""));
        m_home->write(place(QStringLiteral("user/both/index.theme")), index(""));
        m_home->write(place(QStringLiteral("system/both/index.theme")), index("", "Hidden=true"));
        m_home->write(place(QStringLiteral("system/hidden/index.theme")), index("", "Hidden=true"));
        m_home->makeDirectory(place(QStringLiteral("user/no index")));
        QCOMPARE(names(),
                 QStringList({QStringLiteral("both"), QStringLiteral("zebra"), QStringLiteral("ähre")}));
    }

    void findsSounds_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("found");
        const auto row = [](const char *name, const char *files, const char *found) {
            QTest::newRow(name) << QString::fromLatin1(files).split(QLatin1Char(' '))
                                << QString::fromLatin1(found);
        };
        // clang-format off
        row("wav first", "user/a/s/x-y.oga user/a/s/x-y.au user/a/s/x-y.wav", "user/a/s/x-y.wav");
        row("au before oga", "user/a/s/x-y.oga user/a/s/x-y.au", "user/a/s/x-y.au");
        row("oga before ogg", "user/a/s/x-y.ogg user/a/s/x-y.oga", "user/a/s/x-y.oga");
        row("ogg before another ending", "user/a/s/x-y.flac user/a/s/x-y.ogg", "user/a/s/x-y.ogg");
        row("without an ending it is no sound", "user/a/s/x-y user/a/s/x-y.flac", "user/a/s/x-y.flac");
        row("wav of another directory", "user/a/s/x-y.oga user/a/more/x-y.wav", "user/a/more/x-y.wav");
        row("stereo before no profile", "user/a/s/x-y.oga user/a/plain/x-y.wav", "user/a/s/x-y.oga");
        row("no profile", "user/a/plain/x-y.ogg", "user/a/plain/x-y.ogg");
        row("another profile", "user/a/surround/x-y.wav", "");
        row("not in the theme's directories", "user/a/else/x-y.wav user/a/x-y.wav", "");
        row("localised", "user/a/s/x-y.wav user/a/s/de/x-y.oga", "user/a/s/de/x-y.oga");
        row("the user's before the system's", "user/a/s/x-y.oga system/a/s/x-y.wav", "user/a/s/x-y.oga");
        row("the desktop's part of a theme", "own/a/s/x-y.wav", "own/a/s/x-y.wav");
        row("disabled", "user/a/s/x-y.oga user/a/s/x-y.disabled user/grand/s/x-y.wav", "");
        row("general sound", "user/a/s/x.wav user/grand/s/x-y.wav", "user/a/s/x.wav");
        row("a parent's parent first", "user/grand/s/x-y.wav user/second/s/x-y.wav", "user/grand/s/x-y.wav");
        row("next parent", "user/second/s/x-y.wav", "user/second/s/x-y.wav");
        row("common theme", "system/freedesktop/s/x-y.oga", "system/freedesktop/s/x-y.oga");
        row("of no theme", "system/x-y.wav", "system/x-y.wav");
        // clang-format on
    }
    void findsSounds()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, found);
        m_home->write(place(QStringLiteral("user/a/index.theme")), index("missing,first,second"));
        m_home->write(place(QStringLiteral("user/first/index.theme")), index("a;grand"));
        for (const char *theme : {"user/second", "user/grand", "system/freedesktop"})
            m_home->write(place(QLatin1String(theme) + QLatin1String("/index.theme")), index("first"));
        for (const QString &file : files)
            m_home->write(place(file), "sound");
        QazSoundTheme theme("a");
        QVERIFY(theme.load());
        QCOMPARE(sound(theme, "x-y"), found.isEmpty() ? QString() : m_home->path(place(found)));
    }

    void findsWhatIsAskedFor()
    {
        m_home->write(place(QStringLiteral("user/a/index.theme")), index(""));
        const QString surround = m_home->write(place(QStringLiteral("user/a/surround/x.wav")), "sound");
        const QString plain = m_home->write(place(QStringLiteral("user/a/s/x.wav")), "sound");
        const QString french = m_home->write(place(QStringLiteral("user/a/s/fr/x.wav")), "sound");
        QazSoundTheme theme("a");
        QCOMPARE(sound(theme, "x"), QString()); // not loaded
        QVERIFY(theme.load());
        QCOMPARE(sound(theme, "x"), plain);
        QCOMPARE(sound(theme, "x", "5.1"), surround);
        QCOMPARE(sound(theme, "x", "7.1", "fr_BE.UTF-8@euro"), french);
        QCOMPARE(sound(theme, ""), QString());
        QCOMPARE(sound(theme, "../s/x"), QString());
    }

    void seesNewFiles()
    {
        m_home->write(place(QStringLiteral("user/a/index.theme")), index(""));
        const QString oga = m_home->write(place(QStringLiteral("user/a/s/x.oga")), "sound");
        QazSoundTheme theme("a");
        QVERIFY(theme.load());
        QCOMPARE(sound(theme, "x"), oga);
        const QString wav = m_home->write(place(QStringLiteral("user/a/s/x.wav")), "sound");
        const timespec past[2] = {{1000, 0}, {1000, 0}}; // a time of change that surely differs
        QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(QFileInfo(oga).path()).constData(), past, 0), 0);
        QCOMPARE(sound(theme, "x"), wav);
    }

    void tellsItsNames()
    {
        m_home->write(place(QStringLiteral("user/dir/index.theme")),
                      index("", "Name[de]=Glänzend\nName[fr]=Autre"));
        QazSoundTheme theme("dir");
        QCOMPARE(theme.getName(), "dir");
        QVERIFY(theme.load());
        QCOMPARE(QString::fromLocal8Bit(theme.getName()), QStringLiteral("Glänzend"));
        QCOMPARE(theme.getThemeName(), "dir");
        QCOMPARE(QFile::decodeName(theme.getPath()), m_home->path(place(QStringLiteral("user/dir"))));
    }

    void refusesBrokenThemes_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("no sound theme") << QByteArray("[Icon Theme]\nDirectories=s\n");
        QTest::newRow("nothing to look in") << QByteArray("[Sound Theme]\nName=a\nDirectories= , ;\n");
        QTest::newRow("keys outside a group") << QByteArray("Directories=s\n[Sound Theme\nDirectories=x\n");
        QTest::newRow("binary") << QByteArrayLiteral("\x00\xff[\xfe]\n=\n[Sound Theme]=Directories\n");
    }
    void refusesBrokenThemes()
    {
        QFETCH(QByteArray, content);
        m_home->write(place(QStringLiteral("user/a/index.theme")), content);
        m_home->write(place(QStringLiteral("user/a/s/x.wav")), "sound");
        QazSoundTheme theme("a");
        QVERIFY(!theme.load());
        QCOMPARE(sound(theme, "x"), QString());
        QCOMPARE(names(), QStringList(QStringLiteral("a"))); // the user learns of it when choosing it
    }

    void refusesWhatIsNoFile()
    {
        m_home->makeDirectory(place(QStringLiteral("user/directory/index.theme")));
        m_home->makeDirectory(place(QStringLiteral("user/pipe")));
        const QString pipe = m_home->path(place(QStringLiteral("user/pipe/index.theme")));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const char *name : {"directory", "pipe", "missing", "", "..", "../sounds/a"})
            QVERIFY2(!QazSoundTheme(name).load(), name);
    }

private:
    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<ScopedEnvironment> m_dataRoot;
    std::unique_ptr<ScopedEnvironment> m_locale;
};

QTEST_GUILESS_MAIN(TestQazSoundTheme)
#include "tst_qazsoundtheme.moc"
