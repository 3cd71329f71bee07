#include "pages/sounds/soundchoice.h"
#include "pages/sounds/soundconversion.h"
#include "platform/qazsoundtheme.h"
#include "settings/soundassignments.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QtTest>

class TestSoundAssignments : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        const QString themes = ".local/share/sounds/"_s;
        m_home.write(themes + QLatin1String("t/index.theme"), "[Sound Theme]\nDirectories=.\n");
        for (const char *file : {"one.wav", "two.au", "three.oga", "four.ogg", "five.flac", "six.WAV"})
            m_home.write(themes + QLatin1String("t/") + QLatin1String(file), "sound");
        m_directory = QFileInfo(m_home.write("data/sounds/built.wav"_s, "sound")).path();
        QVERIFY(m_theme.load());
    }

    void resolvesAssignments_data()
    {
        // Whether it can be used, the format that was marked, what is played with the theme (! it is not) and without.
        QTest::addColumn<QString>("expected");
        QTest::newRow("built.wav") << "yes; DIR/built.wav; DIR/built.wav";
        QTest::newRow("missing.wav") << "no; DIR/missing.wav; DIR/missing.wav";
        QTest::newRow("one") << "with the theme; THEME/one.wav; DIR/one";
        QTest::newRow("two") << "with the theme; !THEME/two.au; DIR/two";
        QTest::newRow("three") << "with the theme, ogg, not wav; !THEME/three.oga; DIR/three";
        QTest::newRow("four") << "with the theme, ogg, not wav; !THEME/four.ogg; DIR/four";
        QTest::newRow("five") << "with the theme, not wav; !THEME/five.flac; DIR/five";
        QTest::newRow("six") << "with the theme, not wav; !THEME/six.WAV; DIR/six";
        QTest::newRow("seven") << "no; seven; DIR/seven";
        QTest::newRow("/") << "yes; /; /";
        QTest::newRow("/missing.ogg") << "no; /missing.ogg; /missing.ogg";
    }
    void resolvesAssignments()
    {
        const QString assignment = QString::fromLatin1(QTest::currentDataTag());
        SoundFormats formats;
        const bool usable = usableSound(assignment, &m_theme, m_directory, &formats) == assignment;
        const bool usableAlone = usableSound(assignment, nullptr, m_directory, &formats) == assignment;
        QString found = QLatin1String(usableAlone ? "yes" : usable ? "with the theme" : "no");
        found += QLatin1String(formats.ogg ? ", ogg" : "") + QLatin1String(formats.nonWav ? ", not wav" : "");
        for (QazSoundTheme *theme : {&m_theme, static_cast<QazSoundTheme *>(nullptr)}) {
            const PlayableSound sound = playableSound(assignment, theme, m_directory);
            found += QLatin1String(sound.isPlayable ? "; " : "; !") + sound.path;
        }
        found.replace(m_directory, QLatin1String("DIR"));
        QTEST(found.replace(QFile::decodeName(m_theme.getPath()), QLatin1String("THEME")), "expected");
    }

    void startsChoosingWhereTheFileIs()
    {
        const QString themes = QFileInfo("/usr/share/sounds"_s).isDir() ? "/usr/share/sounds"_s : QString();
        const QString used = m_home.write("used.wav"_s, "sound"), built = m_directory + "/built.wav"_s;
        const QString rows[][4] = {// value, sounds directory, start with a theme and without
                                   {used, m_directory, used, used},
                                   {m_home.path("gone.wav"_s), m_directory, m_home.path(), m_home.path()},
                                   {"built.wav"_s, m_directory, built, built},
                                   {"x.wav"_s, m_directory, m_directory, m_directory},
                                   {"x.wav"_s, "/missing"_s, themes, {}},
                                   {{}, m_directory, themes, m_directory},
                                   {"one"_s, m_directory, themes, m_directory},
                                   {"/missing/x.wav"_s, m_directory, themes, m_directory}};
        for (const auto &[value, directory, withTheme, alone] : rows) {
            QCOMPARE(startOfChoice(value, true, directory), withTheme);
            QCOMPARE(startOfChoice(value, false, directory), alone);
        }
    }

    void storesBuiltInFilesByName()
    {
        const QString link = m_home.path("link"_s);
        QVERIFY(QFile::link(m_directory, link));
        for (const QString &directory : {m_directory, link})
            QCOMPARE(assignmentForFile(directory + QLatin1String("/built.wav"), m_directory), "built.wav"_s);
        // The last would mean a theme's sound.
        for (const char *end : {"-more/a.wav", "/sub/a.wav", "/name"}) {
            const QString path = m_directory + QLatin1String(end);
            QCOMPARE(assignmentForFile(path, m_directory), path);
        }
    }

    void quotesSpecialPathsOnly()
    {
        const QString command = "find %1 -name \"*.og[ga]\" | xargs oggdec"_s;
        for (const char *path : {"/usr/share/sounds/My-theme_2.0+x", "/söhne/音", "/a%1"})
            QCOMPARE(conversionCommand(QString::fromUtf8(path)), command.arg(QString::fromUtf8(path)));
        for (const QChar c : " \t\n\"\\$`;&|<>()*?[]{}!#~^"_s)
            QCOMPARE(conversionCommand(QLatin1String("/a") + c), command.arg("'/a%1'"_s.arg(c)));
        QCOMPARE(conversionCommand("/it's"_s), command.arg(QLatin1String("'/it'\\''s'")));
    }

    void unsafeNamesAreFound_data()
    {
        QTest::addColumn<bool>("isSafe");
        for (const char *safe :
             {"a.ogg", "sub/x-1_2.oga", "-o.ogg", "s\xc3\xb6hne.ogg", "a b.wav", "$(x);.ogg", "a b/c.wav"})
            QTest::newRow(safe) << true;
        for (const char *unsafe :
             {"a -o x.ogg", "d -o y/x.oga", "dir \n.ogg/", "it's.ogg", "a\"b.ogg", "a`b.oga", "a\\b.ogg",
              "a\tb.ogg", "a\nb.ogg", "a\x1b.ogg", "a\u00a0b.ogg", ".hidden one.ogg"})
            QTest::newRow(unsafe) << false;
    }
    void unsafeNamesAreFound()
    {
        QFETCH(bool, isSafe);
        const TemporaryHome home;
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        home.write("t/fine.ogg"_s, {});
        if (name.endsWith(u'/'))
            QVERIFY(home.makeDirectory("t/"_s + name.chopped(1)));
        else
            home.write("t/"_s + name, {});
        QVERIFY(QFile::link("/"_s, home.path("t/link"_s))); // not followed
        const QString expected = home.path("t/"_s + name);
        QCOMPARE(unsafeForConversion(home.path("t"_s)), isSafe                ? QString()
                                                        : name.endsWith(u'/') ? expected.chopped(1)
                                                                              : expected);
    }

    void directoryItselfIsLookedAt()
    {
        const TemporaryHome home;
        QVERIFY(home.makeDirectory("a b.ogg"_s));
        QCOMPARE(unsafeForConversion(home.path("a b.ogg"_s)), home.path("a b.ogg"_s));
        QVERIFY(home.makeDirectory("a b"_s)); // find prints nothing
        QCOMPARE(unsafeForConversion(home.path("a b"_s)), QString());
        home.write("a b/c.ogg"_s, {});
        QCOMPARE(unsafeForConversion(home.path("a b"_s)), home.path("a b/c.ogg"_s));
        // What can't be looked into may hold anything.
        QCOMPARE(unsafeForConversion(home.path("missing"_s)), home.path("missing"_s));
        QCOMPARE(unsafeForConversion("-d"_s), "-d"_s);
    }

private:
    TemporaryHome m_home;
    QString m_directory;
    QazSoundTheme m_theme{"t"};
};

QTEST_GUILESS_MAIN(TestSoundAssignments)
#include "tst_soundassignments.moc"
