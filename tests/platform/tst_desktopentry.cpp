#include "platform/qazdesktopentry.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QFile>
#include <QTest>

class TestDesktopEntry : public QObject
{
    Q_OBJECT
private slots:
    void savingKeepsWhatOthersWrote()
    {
        const TemporaryHome home;
        const QString name = ".directory"_s;
        QazDesktopEntry entry(QFile::encodeName(home.path(name)).constData());
        QVERIFY(!entry.load());
        home.write(name, "\xEF\xBB\xBF[Desktop Entry]\nA=1\n[B\nB=2\n");
        QVERIFY(entry.load());
        QCOMPARE(entry.getUnknownValue("A"), "1");
        QCOMPARE(entry.getUnknownValue("B"), "2");
        QVERIFY(!entry.getUnknownValue("C"));

        List<char> keys;
        List<char> values;
        keys.append("C");
        values.append("\"#123456\"");
        keys.append("A");
        values.append("a\nInjected=1");
        entry.setUnknowns(keys, values);
        QCOMPARE(entry.getUnknownValue("C"), "\"#123456\"");
        home.write(name, "\xEF\xBB\xBF[Desktop Entry]\nA=1\n[B\nB=3 # meanwhile\n[X]\nC=x\n");
        QVERIFY(entry.save(0));
        QCOMPARE(home.read(name),
                 QByteArray("[Desktop Entry]\nA=1\n[B\nB=3 # meanwhile\nC=\"#123456\"\n[X]\nC=x\n"));
        const QString before = home.fingerprint();
        QVERIFY(entry.save(0));
        QCOMPARE(home.fingerprint(), before);
    }
};

QTEST_GUILESS_MAIN(TestDesktopEntry)
#include "tst_desktopentry.moc"
