#include "pages/sounds/soundchoice.h"
#include "pages/sounds/soundconversion.h"
#include "pages/sounds/soundplayer.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

/// Playing, choosing and converting, without the page.
class TestSoundFiles : public QObject
{
    Q_OBJECT
private slots:
    void startsChoosingWhereTheFileIs()
    {
        const TemporaryHome home;
        const QString themes = QFileInfo("/usr/share/sounds"_s).isDir() ? "/usr/share/sounds"_s : QString();
        const QString directory = home.path("d"_s), link = home.path("link"_s),
                      used = home.write("used.wav"_s, "sound"), built = home.write("d/built.wav"_s, "sound");
        QString starts;
        for (const QString &value : {used, home.path("gone.wav"_s), "built.wav"_s, "x.wav"_s, QString(),
                                     "one"_s, "/missing/x.wav"_s})
            starts += startOfChoice(value, true, directory) + u' ' + startOfChoice(value, false, directory)
                      + u'|';
        QCOMPARE(starts.replace(home.path(), "~"_s),
                 "~/used.wav ~/used.wav|~ ~|~/d/built.wav ~/d/built.wav|~/d ~/d|%1 ~/d|%1 ~/d|%1 ~/d|"_s.arg(
                     themes));
        QCOMPARE(startOfChoice("x.wav"_s, true, "/missing"_s) + startOfChoice("x.wav"_s, false, "/missing"_s),
                 themes);

        QVERIFY(QFile::link(directory, link));
        QCOMPARE(assignmentForFile(built, link), "built.wav"_s);
        for (const QString &end : {"-more/a.wav"_s, "/sub/a.wav"_s, "/name"_s}) // would mean a theme's sound
            QCOMPARE(assignmentForFile(directory + end, directory), directory + end);
    }

    void quotesSpecialPathsOnly()
    {
        const QString command = "find %1 -name \"*.og[ga]\" | xargs oggdec"_s;
        for (const QString &path : {"/usr/My-theme_2.0+x,@=:"_s, "/söhne/音"_s, "/a%1"_s})
            QCOMPARE(conversionCommand(path), command.arg(path));
        for (const QChar c : " \t\n\"\\$`;&|<>()*?[]{}!#~^"_s)
            QCOMPARE(conversionCommand("/a"_s + c), command.arg("'/a%1'"_s.arg(c)));
        QCOMPARE(conversionCommand("/it's"_s), command.arg("'/it'\\''s'"_s));
    }

    void unsafeNamesAreFound()
    {
        const TemporaryHome home;
        home.write("t/fine.ogg"_s, {});
        QVERIFY(QFile::link("/"_s, home.path("t/link"_s))); // not followed
        const QString directory = home.path("t"_s);
        for (const QString &safe : {"a.ogg"_s, "sub/x-1_2.oga"_s, "-o.ogg"_s, "söhne.ogg"_s, "a b.wav"_s,
                                    "$(x);.ogg"_s, "a b/c.wav"_s, "empty dir/x/y"_s})
            home.write("t/"_s + safe, {});
        QCOMPARE(unsafeForConversion(directory) + unsafeForConversion(directory + "/empty dir"_s), QString());
        for (const char *unsafe : {"a -o x.ogg", "d -o y/x.oga", "it's.ogg", "a\"b.ogg", "a`b.oga",
                                   "a\\b.ogg", "a\nb.ogg", "a\x1b.ogg", "a\u00a0b.ogg", ".hidden one.ogg"}) {
            const QString path = home.write("t/"_s + QString::fromUtf8(unsafe), {});
            QCOMPARE(unsafeForConversion(directory), path);
            QVERIFY(QFile::remove(path));
        }
        const QString unsafe = directory + "/dir \n.ogg"_s; // directories count, too
        QVERIFY(QDir().mkdir(unsafe));
        QCOMPARE(unsafeForConversion(directory), unsafe);
        // What can't be looked into may hold anything.
        for (const QString &self : {unsafe, home.path("missing"_s), "-d"_s})
            QCOMPARE(unsafeForConversion(self), self);
    }

    void leavesALongConversionAlone()
    {
        FakePrograms programs(FakePrograms::Path::Instead);
        convertToWav("/a"_s, 3600000); // nothing to run it
        QVERIFY(!QGuiApplication::overrideCursor());
        programs.add("qaz-su"_s);
        convertToWav("/a"_s, 3600000);

        const TemporaryHome home;
        QFile go(home.makeFifo("go"_s));
        programs.add("qaz-su"_s, "read line <~/go; : >~/done");
        convertToWav("/a"_s, 50);
        QVERIFY(!home.exists("done"_s));
        QVERIFY(go.open(QIODevice::WriteOnly)); // waits for the reader
        go.close();
        QTRY_VERIFY(home.exists("done"_s));
        QTRY_VERIFY(!hasChildProcesses());
    }

    void playerTellsOfEveryEnd()
    {
        // Its script, and what is told.
        const std::pair<QByteArray, QString> rows[] = {{"exit 0", {}},
                                                       {"exit 3", "/player ended with status 3\n"_s},
                                                       {"kill -SEGV $$", "/player: Process crashed\n"_s},
                                                       {{}, "/player: "_s}}; // never starts
        for (const auto &[script, diagnostic] : rows) {
            FakePrograms programs;
            if (!script.isEmpty())
                programs.add("player"_s, script);
            StandardError errors;
            SoundPlayer player(programs.directory() + "/player"_s);
            QSignalSpy ends(&player, &SoundPlayer::ended);
            player.play("-x.wav"_s);
            QTRY_COMPARE(ends.count(), 1);
            QCOMPARE(programs.calls("player"_s).value(0).join(u' '),
                     script.isEmpty() ? QString() : "-q -x.wav"_s);
            const QString told = QString::fromLocal8Bit(errors.take());
            QVERIFY2(told.contains(diagnostic) && told.count(u'\n') == !diagnostic.isEmpty(),
                     qPrintable(told));
        }
    }
};

QTEST_MAIN(TestSoundFiles)
#include "tst_soundfiles.moc"
