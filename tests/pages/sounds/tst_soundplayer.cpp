#include "pages/sounds/soundplayer.h"
#include "pages/sounds/wavconverter.h"
#include "tests/support/childprocesses.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QtTest>

#include <sys/stat.h>

class TestSoundPlayer : public QObject
{
    Q_OBJECT
private slots:
    void passesTheQuietOptionToItsPlayerOnly()
    {
        QCOMPARE(playerArguments(QStringLiteral("/usr/bin/aplay"), QStringLiteral("-x")),
                 QStringList({QStringLiteral("-q"), QStringLiteral("-x")}));
        QCOMPARE(playerArguments(QStringLiteral("/usr/bin/other"), QStringLiteral("x")),
                 QStringList(QStringLiteral("x")));
    }

    void tellsOfEveryEnd_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("diagnostic");
        QTest::newRow("plays") << QByteArray("exit 0") << "";
        QTest::newRow("fails") << QByteArray("exit 3") << "qaz-admin-theme: %1 ended with status 3\n";
        QTest::newRow("crashes") << QByteArray("kill -SEGV $$")
                                 << "qaz-admin-theme: Can't play with %1: Process crashed\n";
        QTest::newRow("never starts") << QByteArray() << "";
    }
    void tellsOfEveryEnd()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, diagnostic);
        FakePrograms programs;
        const QString program = programs.directory() + QLatin1String("/player");
        if (!script.isNull())
            programs.add(QStringLiteral("player"), script);
        StandardError errors;
        SoundPlayer player(this, program);
        QCOMPARE(player.isInstalled(), !script.isNull());
        QSignalSpy ends(&player, &SoundPlayer::ended);
        player.play(QStringLiteral("x.wav"));
        QTRY_COMPARE(ends.count(), 1);
        QVERIFY(!player.isPlaying());
        const QString told = QString::fromLocal8Bit(errors.take());
        if (script.isNull())
            QVERIFY2(told.startsWith(QLatin1String("qaz-admin-theme: Can't play with ")), qPrintable(told));
        else
            QCOMPARE(told, diagnostic.arg(program));
    }

    void leavesNoProcessBehind()
    {
        const TemporaryHome home;
        const QByteArray pipe = QFile::encodeName(home.path(QStringLiteral("endless.wav")));
        QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
        QObject owner;
        auto player = std::make_unique<SoundPlayer>(&owner);
        QSignalSpy starts(player.get(), &SoundPlayer::started);
        QSignalSpy ends(player.get(), &SoundPlayer::ended);
        player->play(QFile::decodeName(pipe));
        QVERIFY(starts.wait());
        player->play(QFile::decodeName(pipe)); // ends the first one
        QVERIFY(starts.wait());
        player->stop();
        QVERIFY(!hasChildProcesses());
        player->play(QFile::decodeName(pipe)); // not even started
        player.reset();
        QVERIFY(!hasChildProcesses());
        QCOMPARE(ends.count(), 0);
    }

    void waitsForTheConversion()
    {
        FakePrograms programs;
        programs.add(QStringLiteral("qaz-su"), "echo oggdec says much >&2; read -t 0.2 line; : >\"$0.done\"");
        WavConverter().convert(QStringLiteral("/a b"));
        QVERIFY(QFile::exists(programs.directory() + QLatin1String("/qaz-su.done")));
        QCOMPARE(programs.calls(QStringLiteral("qaz-su")),
                 QVector<QStringList>({{QStringLiteral("-c"), conversionCommand(QStringLiteral("/a b"))}}));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void leavesALongConversionAlone()
    {
        FakePrograms programs;
        const QString pipe = programs.directory() + QLatin1String("/go");
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        programs.add(QStringLiteral("qaz-su"), "read line <\"$(dirname \"$0\")/go\"; : >\"$0.done\"");
        WavConverter(50).convert(QStringLiteral("/a"));
        const QString done = programs.directory() + QLatin1String("/qaz-su.done");
        QVERIFY(!QFile::exists(done));
        QFile go(pipe);
        QVERIFY(go.open(QIODevice::WriteOnly)); // waits for the reader
        QCOMPARE(go.write("go\n"), 3);
        go.close();
        QTRY_VERIFY(QFile::exists(done));
        QTRY_VERIFY(!hasChildProcesses());
    }

    void survivesAMissingRunner()
    {
        const FakePrograms none(FakePrograms::Path::Instead);
        WavConverter().convert(QStringLiteral("/a"));
        QVERIFY(!QGuiApplication::overrideCursor());
    }
};

QTEST_MAIN(TestSoundPlayer)
#include "tst_soundplayer.moc"
