#include "platform/qazsettings.h"
#include "settings/textvalues.h"
#include "settings/updatevalues.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QtTest>

class TestUpdateValues : public QObject
{
    Q_OBJECT

private slots:
    void onlyDifferencesAreStoredAndAnnounced_data();
    void onlyDifferencesAreStoredAndAnnounced();
    void oddTextsReachFileAndWindowManager_data();
    void oddTextsReachFileAndWindowManager();
};

void TestUpdateValues::onlyDifferencesAreStoredAndAnnounced_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("defaultText");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("after"); // the same as before: nothing is sent, either

    QTest::newRow("int changes") << QByteArray("K=600\n") << QStringLiteral("0") << QVariant(300)
                                 << QByteArray("K=300\n");
    QTest::newRow("int stays") << QByteArray("K=600\n") << QStringLiteral("0") << QVariant(600)
                               << QByteArray("K=600\n");
    QTest::newRow("int is the default")
        << QByteArray() << QStringLiteral("600") << QVariant(600) << QByteArray();
    QTest::newRow("int differs from the default")
        << QByteArray() << QStringLiteral("600") << QVariant(-5) << QByteArray("K=-5\n");
    QTest::newRow("no number is 0") << QByteArray("K=abc\n") << QStringLiteral("7") << QVariant(0)
                                    << QByteArray("K=abc\n");
    QTest::newRow("true stays") << QByteArray("K=true\n") << QStringLiteral("false") << QVariant(true)
                                << QByteArray("K=true\n");
    QTest::newRow("True is true") << QByteArray("K=True\n") << QStringLiteral("false") << QVariant(true)
                                  << QByteArray("K=True\n");
    QTest::newRow("TRUE is false") << QByteArray("K=TRUE\n") << QStringLiteral("true") << QVariant(true)
                                   << QByteArray("K=true\n");
    QTest::newRow("1 and yes are false")
        << QByteArray("K=yes\n") << QStringLiteral("true") << QVariant(false) << QByteArray("K=yes\n");
    QTest::newRow("bool is the default")
        << QByteArray() << QStringLiteral("true") << QVariant(true) << QByteArray();
    QTest::newRow("bool changes") << QByteArray("K=true\n") << QStringLiteral("true") << QVariant(false)
                                  << QByteArray("K=false\n");
    QTest::newRow("text stays") << QByteArray("K=a b\n") << QStringLiteral("")
                                << QVariant(QStringLiteral("a b")) << QByteArray("K=a b\n");
    QTest::newRow("text differs in case")
        << QByteArray("K=a\n") << QStringLiteral("") << QVariant(QStringLiteral("A")) << QByteArray("K=A\n");
    QTest::newRow("text becomes empty")
        << QByteArray("K=a\n") << QStringLiteral("") << QVariant(QStringLiteral("")) << QByteArray("K=\n");
}

void TestUpdateValues::onlyDifferencesAreStoredAndAnnounced()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, defaultText);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, after);
    const TemporaryHome home;
    const QString path = home.write(QStringLiteral("t"), before);
    WmListener listener;
    bool changed = false;
    {
        const QString key = QStringLiteral("K");
        QazSettings store(path);
        store.sync(true);
        if (value.type() == QVariant::Bool)
            changed = updateBoolValue(&store, key, defaultText, value.toBool());
        else if (value.type() == QVariant::Int)
            changed = updateIntValue(&store, key, defaultText, value.toInt());
        else
            changed = updateStringValue(&store, key, defaultText, value.toString());
    }
    QCOMPARE(home.read(QStringLiteral("t")), after);
    QCOMPARE(changed, before != after);
    const QStringList expected = changed
                                     ? QStringList{QLatin1String("QAZWM_UPDATE_VAL K ") + value.toString()}
                                     : QStringList();
    QCOMPARE(listener.take(), expected);
}

void TestUpdateValues::oddTextsReachFileAndWindowManager_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("blanks at the ends") << QStringLiteral("  x ");
    QTest::newRow("percent signs") << QStringLiteral("%n%s%1 100%");
    QTest::newRow("line break") << QStringLiteral("a\nb");
    QTest::newRow("not ASCII") << QStringLiteral("Größe 字");
    QTest::newRow("10,000 characters") << QString(10000, QLatin1Char('z'));
}

void TestUpdateValues::oddTextsReachFileAndWindowManager()
{
    QFETCH(QString, text);
    const TemporaryHome home;
    WmListener listener;
    {
        QazSettings store(home.path(QStringLiteral("t")));
        QVERIFY(updateStringValue(&store, QStringLiteral("Key"), QString(), text));
    }
    QCOMPARE(listener.take(), QStringList{QLatin1String("QAZWM_UPDATE_VAL Key ") + text});
    QazSettings store(home.path(QStringLiteral("t")));
    store.sync(true);
    QCOMPARE(store.value(QStringLiteral("Key")).toString(), text);
}

QTEST_MAIN(TestUpdateValues)
#include "tst_updatevalues.moc"
