#include "pages/screensaver/screensaverpage.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/rows.h"
#include "tests/support/testing.h"

namespace {

constexpr const char *spinBoxes[] = {"minutesToStartSpinBox", "dpmsOffSpinBox", "wrongPasswordTimeoutSpinBox",
                                     "wrongPasswordBellSpinBox"};

QString shown(const PageOverFile<ScreensaverPage> &file)
{
    const auto isChecked = [&file](const char *name) { return file.find<QCheckBox>(name)->isChecked(); };
    QString text = isChecked("startAutomaticallyCheckBox") ? "on"_s : "off"_s;
    for (const char *name : spinBoxes)
        text += u' ' + file.find<QSpinBox>(name)->text();
    if (isChecked("lockTTYCheckBox"))
        text += " tty"_s;
    return isChecked("lockXaccessCheckBox") ? text + " x"_s : text;
}

} // namespace

class TestScreensaverPage : public QObject
{
    Q_OBJECT

private slots:
    void untouchedValuesAreSavedOnlyWhereTheFormCannotHoldThem()
    {
        // What is stored, shown and saved; an empty text: as stored.
        for (const QStringList &row : rowsOf("pages/screensaver/values.json"_s)) {
            PageOverFile<ScreensaverPage> file(row[1].toUtf8());
            QCOMPARE(shown(file), row[2]);
            QCOMPARE(file.save().isEmpty(), row[3].isEmpty());
            QCOMPARE(QString::fromUtf8(file.content()), row[3].isEmpty() ? row[1] : row[3]);
            QCOMPARE(file.save(), QString());
        }
    }

    void everyEditIsSavedInOrder()
    {
        PageOverFile<ScreensaverPage> file("# mine\nLockerBellLevel=7\nOther=1\n");
        QSignalSpy changed(&file.page, &ScreensaverPage::changedSignal);
        int value = 15;
        for (const char *name : spinBoxes) {
            auto *box = file.find<QSpinBox>(name);
            box->selectAll();
            QTest::keyClicks(box, QString::number(value++));
        }
        file.find<QCheckBox>("lockTTYCheckBox")->click();
        file.find<QCheckBox>("lockXaccessCheckBox")->click();
        QCOMPARE(changed.size(), 16); // two for each digit that changes a number, one for each box
        QCOMPARE(file.save(), "ScreenSaverDelay 900|LockerDpmsOffTimeout 960|LockerWrongPasswdTimeout 17|"
                              "LockerBellLevel 18|LockerTTYLock false|LockerXaccessLock true"_s);
        QCOMPARE(file.content(),
                 QByteArray("# mine\nLockerBellLevel=18\nOther=1\nLockerDpmsOffTimeout=960\n"
                            "LockerTTYLock=false\nLockerWrongPasswdTimeout=17\nLockerXaccessLock=true\n"
                            "ScreenSaverDelay=900\n"));
        file.find<QCheckBox>("startAutomaticallyCheckBox")->click();
        QVERIFY(file.find<QSpinBox>("minutesToStartSpinBox")->isEnabled());
        QCOMPARE(file.save(), "ScreenSaverDelay 0"_s);
    }
};

QTEST_MAIN(TestScreensaverPage)
#include "tst_screensaverpage.moc"
