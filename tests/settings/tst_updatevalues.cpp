#include "platform/qazsettings.h"
#include "settings/updatevalues.h"
#include "tests/support/rows.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

class TestUpdateValues : public QObject
{
    Q_OBJECT
private slots:
    void onlyDifferencesAreStoredAndAnnounced()
    {
        const QString key = "K"_s;
        // The value's type and text, a default, the file before and after; where both are the same, nothing is sent.
        for (const QStringList &row : rowsOf("settings/updatevalues.json"_s)) {
            const QString type = row[0], value = row[1], defaultText = row[2];
            const TemporaryHome home;
            WmListener listener;
            bool changed = false;
            {
                QazSettings store(home.write("t"_s, row[3].toUtf8()));
                store.sync(true);
                if (type == "bool"_s)
                    changed = updateBoolValue(&store, key, defaultText, value == "true"_s);
                else if (type == "int"_s)
                    changed = updateIntValue(&store, key, defaultText, value.toInt());
                else
                    changed = updateStringValue(&store, key, defaultText, value);
            }
            QCOMPARE(QString::fromUtf8(home.read("t"_s)), row[4]);
            QCOMPARE(changed, row[3] != row[4]);
            QCOMPARE(listener.takeUpdates(), changed ? "K "_s + value : QString());
        }
    }
};

QTEST_MAIN(TestUpdateValues)
#include "tst_updatevalues.moc"
