#include "pages/sounds/soundassignments.h"
#include "pages/sounds/wavconverter.h"
#include "platform/qazsoundtheme.h"
#include "tests/support/environment.h"
#include "tests/support/temporaryhome.h"

#include <QtTest>

class TestSoundAssignments : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_home.write(QStringLiteral(".local/share/sounds/t/index.theme"), "[Sound Theme]\nDirectories=.\n");
        for (const char *file :
             {"t/one.wav", "t/two.au", "t/three.oga", "t/four.ogg", "t/five.flac", "t/six.WAV"})
            m_home.write(QStringLiteral(".local/share/sounds/") + QLatin1String(file), "sound");
        m_directory = QFileInfo(m_home.write(QStringLiteral("data/sounds/built.wav"), "sound")).path();
        QVERIFY(m_theme.load());
    }

    void defaultsOfUnknownKeysAreEmpty()
    {
        QCOMPARE(defaultSound(QStringLiteral("MinimizeSound"), true), QStringLiteral("window-minimized"));
        QCOMPARE(defaultSound(QStringLiteral("MinimizeSound"), false), QString());
        QCOMPARE(defaultSound(QStringLiteral("SystemLockSound"), false),
                 QStringLiteral("x-qaz-wm-chimes.wav"));
        QCOMPARE(defaultSound(QStringLiteral("OtherSound"), true), QString());
    }

    void tellsUsableSounds_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("withTheme");
        QTest::addColumn<bool>("usable");
        QTest::addColumn<QString>("formats");
        const auto row = [](const char *name, bool withTheme, bool usable, const char *formats) {
            QTest::addRow("%s, %s", name, withTheme ? "theme" : "no theme")
                << QString::fromLatin1(name) << withTheme << usable << QString::fromLatin1(formats);
        };
        row("", true, false, "");
        row("built.wav", true, true, "");
        row("built.wav", false, true, "");
        row("missing.wav", true, false, "");
        row("one", false, false, "");
        row("one", true, true, "");
        row("two", true, true, "");
        row("three", true, true, "ogg non-wav");
        row("four", true, true, "ogg non-wav");
        row("five", true, true, "non-wav");
        row("six", true, true, "non-wav");
        row("seven", true, false, "");
        row("/", true, true, "");
        row("/missing", true, false, "");
    }
    void tellsUsableSounds()
    {
        QFETCH(QString, name);
        QFETCH(bool, usable);
        QFETCH(bool, withTheme);
        SoundFormats found;
        QCOMPARE(usableSound(name, withTheme ? &m_theme : nullptr, m_directory, &found),
                 usable ? name : QString());
        const QString text = QLatin1String(found.ogg ? "ogg " : "")
                             + QLatin1String(found.nonWav ? "non-wav" : "");
        QTEST(text, "formats");
    }

    void tellsWhatToPlay_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("withTheme"); // "!" in front: not playable
        QTest::addColumn<QString>("withoutTheme");
        QTest::newRow("own file") << "/x/y.ogg"
                                  << "/x/y.ogg"
                                  << "/x/y.ogg";
        QTest::newRow("built in") << "built.wav"
                                  << "DIR/built.wav"
                                  << "DIR/built.wav";
        QTest::newRow("theme's wav") << "one"
                                     << "THEME/one.wav"
                                     << "DIR/one";
        QTest::newRow("theme's au") << "two"
                                    << "!THEME/two.au"
                                    << "DIR/two";
        QTest::newRow("not in the theme") << "seven"
                                          << "seven"
                                          << "DIR/seven";
    }
    void tellsWhatToPlay()
    {
        QFETCH(QString, value);
        const auto play = [this, value](QazSoundTheme *theme) {
            const PlayableSound sound = playableSound(value, theme, m_directory);
            QString text = sound.path;
            text.replace(m_directory, QLatin1String("DIR"));
            text.replace(m_home.path(QStringLiteral(".local/share/sounds/t")), QLatin1String("THEME"));
            return sound.isPlayable ? text : QLatin1Char('!') + text;
        };
        QTEST(play(&m_theme), "withTheme");
        QTEST(play(nullptr), "withoutTheme");
    }

    void startsChoosingWhereTheFileIs()
    {
        const QString shared = QStringLiteral("/usr/share/sounds");
        const QString ownFile = m_home.path(QStringLiteral("missing.wav"));
        QCOMPARE(startDirectory(ownFile, true, m_directory), m_home.path());
        QCOMPARE(startDirectory(QStringLiteral("x.wav"), true, m_directory), m_directory);
        QCOMPARE(startDirectory(QStringLiteral("x.wav"), true, QStringLiteral("/missing")), shared);
        for (const QString &value : {QString(), QStringLiteral("one"), QStringLiteral("/missing/x.wav")}) {
            QCOMPARE(startDirectory(value, true, m_directory), shared);
            QCOMPARE(startDirectory(value, false, m_directory), m_directory);
        }
    }

    void storesBuiltInFilesByName()
    {
        const QString link = m_home.path(QStringLiteral("link"));
        QVERIFY(QFile::link(m_directory, link));
        const auto stored = [this](const QString &path) { return assignmentForFile(path, m_directory); };
        QCOMPARE(stored(m_directory + QLatin1String("/built.wav")), QStringLiteral("built.wav"));
        QCOMPARE(stored(link + QLatin1String("/built.wav")), QStringLiteral("built.wav"));
        for (const char *end : {"-more/a.wav", "/sub/a.wav", "/name"}) // the last would mean a theme's sound
            QCOMPARE(stored(m_directory + QLatin1String(end)), m_directory + QLatin1String(end));
    }

    void quotesSpecialPathsOnly_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("word");
        QTest::newRow("ordinary") << "/usr/share/sounds/My-theme_2.0+x"
                                  << "/usr/share/sounds/My-theme_2.0+x";
        QTest::newRow("letters of the world") << QStringLiteral("/söhne/音") << QStringLiteral("/söhne/音");
        QTest::newRow("place mark") << "/a%1"
                                    << "/a%1";
        for (const QChar c : QStringLiteral(" \t\n\"\\$`;&|<>()*?[]{}!#~^"))
            QTest::addRow("character %d", c.unicode())
                << QLatin1String("/a") + c << QLatin1String("'/a") + c + QLatin1Char('\'');
        QTest::newRow("quote") << "/it's"
                               << "'/it'\\''s'";
    }
    void quotesSpecialPathsOnly()
    {
        QFETCH(QString, path);
        QFETCH(QString, word);
        QCOMPARE(conversionCommand(path),
                 QLatin1String("find ") + word + QLatin1String(" -name \"*.og[ga]\" | xargs oggdec"));
    }

private:
    TemporaryHome m_home;
    QString m_directory;
    QazSoundTheme m_theme{"t"};
};

QTEST_GUILESS_MAIN(TestSoundAssignments)
#include "tst_soundassignments.moc"
