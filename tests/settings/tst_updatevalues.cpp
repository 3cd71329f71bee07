#include "platform/qazsettings.h"
#include "settings/updatevalues.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

class TestUpdateValues : public QObject
{
    Q_OBJECT
private slots:
    void onlyDifferencesAreStoredAndAnnounced()
    {
        const QString key = "K"_s;
        // The file before, a default, the value and the file after; where both are the same, nothing is sent.
        const std::tuple<QByteArray, QString, QVariant, QByteArray> rows[] = {
            {"K=600\n", "0"_s, -5, "K=-5\n"},
            {"K=600\n", "0"_s, 600, "K=600\n"},
            {"", "600"_s, 600, ""},
            {"K=abc\n", "7"_s, 0, "K=abc\n"},
            {"K=True\n", "false"_s, true, "K=True\n"},
            {"K=TRUE\n", "true"_s, true, "K=true\n"},
            {"K=yes\n", "true"_s, false, "K=yes\n"},
            {"K=true\n", "true"_s, false, "K=false\n"},
            {"K=a b\n", {}, "a b"_s, "K=a b\n"},
            {"K=a\n", {}, "A"_s, "K=A\n"},
            {"K=a\n", {}, ""_s, "K=\n"},
            {"", {}, " 字%n%s%1\nß "_s, "K=\\s字%n%s%1\\nß\\s\n"}};
        for (const auto &[before, defaultText, value, after] : rows) {
            const TemporaryHome home;
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
            QCOMPARE(listener.takeUpdates(), changed ? "K "_s + value.toString() : QString());
        }
    }
};

QTEST_MAIN(TestUpdateValues)
#include "tst_updatevalues.moc"
