#include "pages/screensaver/screensaverpage.h"
#include "tests/support/pageoverfile.h"
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
        const std::tuple<QByteArray, QString, QByteArray> rows[] = {
            {"Other=1\n", "on 10min 1min 2sec 50% tty"_s, ""},
            {"ScreenSaverDelay=900\nLockerDpmsOffTimeout=120\nLockerWrongPasswdTimeout=7\n"
             "LockerBellLevel=0\nLockerTTYLock=false\nLockerXaccessLock=true\n",
             "on 15min 2min 7sec 0% x"_s, ""},
            {"ScreenSaverDelay=90\n", "on 1min 1min 2sec 50% tty"_s, "ScreenSaverDelay=60\n"},
            {"ScreenSaverDelay=30\n", "off 0min 1min 2sec 50% tty"_s, "ScreenSaverDelay=0\n"},
            {"ScreenSaverDelay=soon\n", "off 0min 1min 2sec 50% tty"_s, ""},
            {"ScreenSaverDelay=-600\n", "off 0min 1min 2sec 50% tty"_s, "ScreenSaverDelay=0\n"},
            {"ScreenSaverDelay=99999999\nLockerBellLevel=400\nLockerWrongPasswdTimeout=100\n",
             "on 999min 1min 99sec 100% tty"_s,
             "ScreenSaverDelay=59940\nLockerBellLevel=100\nLockerWrongPasswdTimeout=99\n"},
            // Any true text is shown as such, but compared as false.
            {"LockerTTYLock=0\nLockerXaccessLock=TRUE\n", "on 10min 1min 2sec 50% x"_s,
             "LockerTTYLock=0\nLockerXaccessLock=true\n"}};
        for (const auto &[stored, shownTexts, saved] : rows) {
            PageOverFile<ScreensaverPage> file(stored);
            QCOMPARE(shown(file), shownTexts);
            QCOMPARE(file.save().isEmpty(), saved.isEmpty());
            QCOMPARE(file.content(), saved.isEmpty() ? stored : saved);
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
