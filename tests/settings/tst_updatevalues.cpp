#include "platform/qazsettings.h"
#include "settings/updatevalues.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QtTest>

class TestUpdateValues : public QObject
{
    Q_OBJECT

private slots:
    void onlyDifferencesAreStoredAndAnnounced_data()
    {
        const auto text = [](const char *value) { return QVariant(QString::fromUtf8(value)); };
        const struct {
            const char *name;
            const char *before;
            const char *defaultText;
            QVariant value;
            const char *after; // the same as before: nothing is sent, either
        } rows[] = {{"int changes", "K=600\n", "0", 300, "K=300\n"},
                    {"int stays", "K=600\n", "0", 600, "K=600\n"},
                    {"int is the default", "", "600", 600, ""},
                    {"int differs from the default", "", "600", -5, "K=-5\n"},
                    {"no number is 0", "K=abc\n", "7", 0, "K=abc\n"},
                    {"true stays", "K=true\n", "false", true, "K=true\n"},
                    {"True is true", "K=True\n", "false", true, "K=True\n"},
                    {"TRUE is false", "K=TRUE\n", "true", true, "K=true\n"},
                    {"yes is false", "K=yes\n", "true", false, "K=yes\n"},
                    {"bool is the default", "", "true", true, ""},
                    {"bool changes", "K=true\n", "true", false, "K=false\n"},
                    {"text stays", "K=a b\n", "", text("a b"), "K=a b\n"},
                    {"text differs in case", "K=a\n", "", text("A"), "K=A\n"},
                    {"text becomes empty", "K=a\n", "", text(""), "K=\n"},
                    {"odd text", "", "", text(" 字%n%s%1\nß "), "K=\\s字%n%s%1\\nß\\s\n"}};
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("defaultText");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QByteArray>("after");
        for (const auto &row : rows)
            QTest::newRow(row.name) << QByteArray(row.before) << QString::fromLatin1(row.defaultText)
                                    << row.value << QByteArray(row.after);
    }
    void onlyDifferencesAreStoredAndAnnounced()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, defaultText);
        QFETCH(QVariant, value);
        QFETCH(QByteArray, after);
        const TemporaryHome home;
        const QString key = "K"_s;
        WmListener listener;
        bool changed = false;
        {
            QazSettings store(home.write("t"_s, before));
            store.sync(true);
            if (value.type() == QVariant::Bool)
                changed = updateBoolValue(&store, key, defaultText, value.toBool());
            else if (value.type() == QVariant::Int)
                changed = updateIntValue(&store, key, defaultText, value.toInt());
            else
                changed = updateStringValue(&store, key, defaultText, value.toString());
        }
        QCOMPARE(home.read("t"_s), after);
        QCOMPARE(changed, before != after);
        const QString command = "QAZWM_UPDATE_VAL K "_s + value.toString();
        QCOMPARE(listener.take(), changed ? QStringList{command} : QStringList());
    }
};

QTEST_MAIN(TestUpdateValues)
#include "tst_updatevalues.moc"
