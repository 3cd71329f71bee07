#include "pages/sounds/soundoutput.h"
#include "pages/sounds/soundplayer.h"
#include "pages/sounds/wavconverter.h"
#include "tests/support/childprocesses.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"

#include <QLibrary>
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
        SoundPlayer player(this, programs.directory() + QLatin1Char('/') + name);
        QCOMPARE(player.isInstalled(), !script.isEmpty());
        QSignalSpy ends(&player, &SoundPlayer::ended);
        player.play("-x.wav"_s);
        QTRY_COMPARE(ends.count(), 1);
        QVERIFY(!player.isPlaying());
        QCOMPARE(programs.calls(name).value(0).join(QLatin1Char(' ')), row.at(2));
        const QString told = QString::fromLocal8Bit(errors.take());
        QVERIFY2(told.contains(diagnostic) && told.isEmpty() == diagnostic.isEmpty(), qPrintable(told));
    }

    void findsQSoundInItsModule()
    {
        // Of the editor, which has the module beside it; this program has not.
        QCOMPARE(createQSound("/nowhere.wav"_s), nullptr);
        QLibrary module(QStringLiteral(QAZ_BINARY_DIR "/lib/qaz-admin-theme/modules/qsound"));
        using Create = SoundOutput *(*)(const QString &);
        const auto create = reinterpret_cast<Create>(module.resolve("createQSoundOutput"));
        QVERIFY2(create, qPrintable(module.errorString()));
        const std::unique_ptr<SoundOutput> sound(create("/nowhere.wav"_s));
        sound->play();
        sound->stop();
    }

    void leavesALongConversionAlone()
    {
        FakePrograms programs(FakePrograms::Path::Instead);
        WavConverter().convert("/a"_s); // nothing to run it
        QVERIFY(!QGuiApplication::overrideCursor());

        QFile go(programs.directory() + QLatin1String("/go"));
        QCOMPARE(::mkfifo(QFile::encodeName(go.fileName()).constData(), 0600), 0);
        programs.add("qaz-su"_s, "read line <\"${0%/*}/go\"; : >\"$0.done\"");
        WavConverter(50).convert("/a"_s);
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
