#include "pages/screensaver/screensaverpage.h"
#include "platform/qazsettings.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QCheckBox>
#include <QSpinBox>
#include <QtTest>

#include <optional>

namespace {

const QString themeFile = "t"_s;
constexpr const char *spinBoxes[] = {"minutesToStartSpinBox", "dpmsOffSpinBox", "wrongPasswordTimeoutSpinBox",
                                     "wrongPasswordBellSpinBox"};

} // namespace

class TestScreensaverPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home.emplace();
        m_page = std::make_unique<ScreensaverPage>();
    }

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
            init();
            m_home->write(themeFile, stored);
            WmListener listener;
            load();
            QCOMPARE(shown(), shownTexts);
            save();
            QCOMPARE(m_home->read(themeFile), saved.isEmpty() ? stored : saved);
            QCOMPARE(listener.take().isEmpty(), saved.isEmpty());
            save();
            QCOMPARE(listener.take(), QStringList());
        }
    }

    void everyEditIsSavedInOrder()
    {
        m_home->write(themeFile, "# mine\nLockerBellLevel=7\nOther=1\n");
        WmListener listener;
        load();
        int value = 15;
        for (const char *name : spinBoxes) {
            // The limits and the meaning of 0 stand in the What's This text.
            QVERIFY2(spin(name)->whatsThis().contains(" 0 to %1. 0 "_s.arg(spin(name)->maximum())), name);
            spin(name)->selectAll();
            QTest::keyClicks(spin(name), QString::number(value++));
        }
        check("lockTTYCheckBox")->click();
        check("lockXaccessCheckBox")->click();
        save();
        QCOMPARE(listener.take().replaceInStrings("QAZWM_UPDATE_VAL "_s, QString()).join(u' '),
                 "ScreenSaverDelay 900 LockerDpmsOffTimeout 960 LockerWrongPasswdTimeout 17 "
                 "LockerBellLevel 18 LockerTTYLock false LockerXaccessLock true"_s);
        QCOMPARE(
            m_home->read(themeFile),
            QByteArray("# mine\nLockerBellLevel=18\nOther=1\nLockerDpmsOffTimeout=960\nLockerTTYLock=false\n"
                       "LockerWrongPasswdTimeout=17\nLockerXaccessLock=true\nScreenSaverDelay=900\n"));
    }

    void aClearedCheckBoxSwitchesTheScreensaverOff()
    {
        m_home->write(themeFile, "ScreenSaverDelay=600\n");
        load();
        check("startAutomaticallyCheckBox")->click();
        QCOMPARE(spin("minutesToStartSpinBox")->value(), 10);
        QVERIFY(spin("minutesToStartSpinBox")->isEnabled());
        save();
        QCOMPARE(m_home->read(themeFile), QByteArray("ScreenSaverDelay=0\n"));
    }

private:
    void load()
    {
        QazSettings store(m_home->path(themeFile));
        store.sync(true);
        QVERIFY(m_page->loadValues(&store));
    }
    void save()
    {
        QazSettings store(m_home->path(themeFile));
        store.sync(true);
        m_page->saveValues(&store);
    }
    QSpinBox *spin(const char *name) { return m_page->findChild<QSpinBox *>(QLatin1String(name)); }
    QCheckBox *check(const char *name) { return m_page->findChild<QCheckBox *>(QLatin1String(name)); }
    QString shown()
    {
        QString text = check("startAutomaticallyCheckBox")->isChecked() ? "on"_s : "off"_s;
        for (const char *name : spinBoxes)
            text += u' ' + spin(name)->text();
        if (check("lockTTYCheckBox")->isChecked())
            text += " tty"_s;
        return check("lockXaccessCheckBox")->isChecked() ? text + " x"_s : text;
    }

    std::optional<TemporaryHome> m_home;
    std::unique_ptr<ScreensaverPage> m_page;
};

QTEST_MAIN(TestScreensaverPage)
#include "tst_screensaverpage.moc"
