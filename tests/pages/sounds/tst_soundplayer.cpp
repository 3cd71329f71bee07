#include "pages/sounds/soundconversion.h"
#include "pages/sounds/soundplayer.h"
#include "tests/support/childprocesses.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"

#include <QtTest>

#include <sys/stat.h>

class TestSoundPlayer : public QObject
{
    Q_OBJECT
private slots:
    void tellsOfEveryEnd_data()
    {
        QTest::addColumn<QStringList>("row"); // program, its script, its arguments, the diagnostic
        QTest::newRow("plays") << "my-aplay|exit 0|-q -x.wav|"_s.split(QLatin1Char('|'));
        QTest::newRow("fails") << "player|exit 3|-x.wav|player ended with status 3\n"_s.split(
            QLatin1Char('|'));
        QTest::newRow("crashes") << "player|kill -SEGV $$|-x.wav|player: Process crashed\n"_s.split(
            QLatin1Char('|'));
        QTest::newRow("never starts") << "player|||\n"_s.split(QLatin1Char('|'));
    }
    void tellsOfEveryEnd()
    {
        QFETCH(QStringList, row);
        const QString &name = row.at(0), &script = row.at(1), &diagnostic = row.at(3);
        FakePrograms programs;
        if (!script.isEmpty())
            programs.add(name, script.toLatin1());
        StandardError errors;
        SoundPlayer player(programs.directory() + QLatin1Char('/') + name);
        QCOMPARE(player.isInstalled(), !script.isEmpty());
        QSignalSpy ends(&player, &SoundPlayer::ended);
        player.play("-x.wav"_s);
        QTRY_COMPARE(ends.count(), 1);
        QVERIFY(!player.isPlaying());
        QCOMPARE(programs.calls(name).value(0).join(QLatin1Char(' ')), row.at(2));
        const QString told = QString::fromLocal8Bit(errors.take());
        QVERIFY2(told.contains(diagnostic) && told.count(u'\n') == diagnostic.count(u'\n'), qPrintable(told));
    }

    void leavesALongConversionAlone()
    {
        FakePrograms programs(FakePrograms::Path::Instead);
        convertToWav("/a"_s); // nothing to run it
        QVERIFY(!QGuiApplication::overrideCursor());

        QFile go(programs.directory() + QLatin1String("/go"));
        QCOMPARE(::mkfifo(QFile::encodeName(go.fileName()).constData(), 0600), 0);
        programs.add("qaz-su"_s, "read line <\"${0%/*}/go\"; : >\"$0.done\"");
        convertToWav("/a"_s, 50);
        const QString done = programs.directory() + QLatin1String("/qaz-su.done");
        QVERIFY(!QFile::exists(done));
        QVERIFY(go.open(QIODevice::WriteOnly)); // waits for the reader
        go.close();
        QTRY_VERIFY(QFile::exists(done));
        QTRY_VERIFY(!hasChildProcesses());
    }
};

QTEST_MAIN(TestSoundPlayer)
#include "tst_soundplayer.moc"
