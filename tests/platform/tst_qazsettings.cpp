#include "platform/qazsettings.h"
#include "tests/tools/toolrun.h"

class TestQazSettings : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheLinesOfSetKeysChange() { replay("platform/settings.txt"_s); }

    void onlyChangesAreWrittenAtTheEnd()
    {
        const TemporaryHome home;
        auto store = std::make_unique<QazSettings>(home.write("t"_s, "Key=a\nA=1\nB=1\n"));
        const QString before = home.fingerprint();
        store->sync(true);
        store->setValue("A"_s, false);
        QCOMPARE(store->value("A"_s).toString(), "false"_s);
        QCOMPARE(home.fingerprint(), before);
        home.write("t"_s, "# new\nB=3\nA=1\nC=4\n"); // by another program
        store.reset();
        QCOMPARE(home.read("t"_s), QByteArray("# new\nB=3\nA=false\nC=4\n"));
    }
};

QTEST_GUILESS_MAIN(TestQazSettings)
#include "tst_qazsettings.moc"
