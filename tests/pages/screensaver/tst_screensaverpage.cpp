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
        // clang-format off
        constexpr struct {
            const char *stored;
            const char *shown;
            const char *saved; // nullptr: as stored
        } rows[] = {
            {"Other=1\n", "on 10min 1min 2sec 50% tty", nullptr},
            {"ScreenSaverDelay=900\nLockerDpmsOffTimeout=120\nLockerWrongPasswdTimeout=7\n"
             "LockerBellLevel=0\nLockerTTYLock=false\nLockerXaccessLock=true\n", "on 15min 2min 7sec 0% x", nullptr},
            {"ScreenSaverDelay=90\n", "on 1min 1min 2sec 50% tty", "ScreenSaverDelay=60\n"},
            {"ScreenSaverDelay=30\n", "off 0min 1min 2sec 50% tty", "ScreenSaverDelay=0\n"},
            {"ScreenSaverDelay=soon\n", "off 0min 1min 2sec 50% tty", nullptr},
            {"ScreenSaverDelay=-600\n", "off 0min 1min 2sec 50% tty", "ScreenSaverDelay=0\n"},
            {"ScreenSaverDelay=99999999\nLockerBellLevel=400\nLockerWrongPasswdTimeout=100\n",
             "on 999min 1min 99sec 100% tty",
             "ScreenSaverDelay=59940\nLockerBellLevel=100\nLockerWrongPasswdTimeout=99\n"},
            // Any true text is shown as such, but compared as false.
            {"LockerTTYLock=0\nLockerXaccessLock=TRUE\n", "on 10min 1min 2sec 50% x",
             "LockerTTYLock=0\nLockerXaccessLock=true\n"}};
        // clang-format on
        for (const auto &row : rows) {
            init();
            m_home->write(themeFile, row.stored);
            WmListener listener;
            QVERIFY(!m_page->loaded);
            load();
            QVERIFY(m_page->loaded);
            QCOMPARE(shown(), QLatin1String(row.shown));
            save();
            QCOMPARE(m_home->read(themeFile), QByteArray(row.saved ? row.saved : row.stored));
            QCOMPARE(listener.take().isEmpty(), !row.saved);
            save();
            QCOMPARE(listener.take(), QStringList());
        }
    }

    void numbersStayInTheirLimits()
    {
        constexpr struct {
            const char *name;
            int maximum;
        } rows[] = {{"minutesToStartSpinBox", 999},
                    {"dpmsOffSpinBox", 999},
                    {"wrongPasswordTimeoutSpinBox", 99},
                    {"wrongPasswordBellSpinBox", 100}};
        QCOMPARE(m_page->findChildren<QSpinBox *>().size(), int(std::size(rows)));
        for (const auto &row : rows) {
            QCOMPARE(spin(row.name)->minimum(), 0);
            QCOMPARE(spin(row.name)->maximum(), row.maximum);
            // What the number is stands in its What's This text: the limits and the meaning of 0.
            const QString text = spin(row.name)->whatsThis();
            QVERIFY2(text.contains(" 0 to %1. 0 "_s.arg(row.maximum)), row.name);
        }
    }

    void everyEditIsSavedInOrder()
    {
        m_home->write(themeFile, "# mine\nLockerBellLevel=7\nOther=1\n");
        WmListener listener;
        load();
        for (const auto &[name, value] : {std::pair("minutesToStartSpinBox", "15"),
                                          {"dpmsOffSpinBox", "20"},
                                          {"wrongPasswordTimeoutSpinBox", "3"},
                                          {"wrongPasswordBellSpinBox", "4"}}) {
            spin(name)->selectAll();
            QTest::keyClicks(spin(name), QLatin1String(value));
        }
        check("lockTTYCheckBox")->click();
        check("lockXaccessCheckBox")->click();
        save();
        QCOMPARE(listener.take().replaceInStrings("QAZWM_UPDATE_VAL "_s, QString()).join(u' '),
                 "ScreenSaverDelay 900 LockerDpmsOffTimeout 1200 LockerWrongPasswdTimeout 3 "
                 "LockerBellLevel 4 LockerTTYLock false LockerXaccessLock true"_s);
        QCOMPARE(
            m_home->read(themeFile),
            QByteArray("# mine\nLockerBellLevel=4\nOther=1\nLockerDpmsOffTimeout=1200\nLockerTTYLock=false\n"
                       "LockerWrongPasswdTimeout=3\nLockerXaccessLock=true\nScreenSaverDelay=900\n"));
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

    void editsAreNoticedOnceLoaded()
    {
        QSignalSpy changed(m_page.get(), &ScreensaverPage::changedSignal);
        spin("dpmsOffSpinBox")->setValue(3);
        load();
        load();
        QCOMPARE(changed.count(), 0);
        spin("dpmsOffSpinBox")->stepUp();
        QCOMPARE(changed.count(), 2); // the number and the text
        check("lockTTYCheckBox")->click();
        QCOMPARE(changed.count(), 3);
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
        QStringList texts{check("startAutomaticallyCheckBox")->isChecked() ? "on"_s : "off"_s};
        for (const char *name : {"minutesToStartSpinBox", "dpmsOffSpinBox", "wrongPasswordTimeoutSpinBox",
                                 "wrongPasswordBellSpinBox"})
            texts.append(spin(name)->text());
        if (check("lockTTYCheckBox")->isChecked())
            texts.append("tty"_s);
        if (check("lockXaccessCheckBox")->isChecked())
            texts.append("x"_s);
        return texts.join(u' ');
    }

    std::optional<TemporaryHome> m_home;
    std::unique_ptr<ScreensaverPage> m_page;
};

QTEST_MAIN(TestScreensaverPage)
#include "tst_screensaverpage.moc"
