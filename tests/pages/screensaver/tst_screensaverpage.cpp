#include "pages/screensaver/screensaverpage.h"
#include "platform/qazsettings.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

class TestScreensaverPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void storedValuesAreShown_data();
    void storedValuesAreShown();
    void savingUntouchedWritesOnlyWhatTheFormCannotHold_data();
    void savingUntouchedWritesOnlyWhatTheFormCannotHold();
    void everyEditIsSavedInOrder();
    void aClearedCheckBoxSwitchesTheScreensaverOff();
    void editsAreNoticedOnceLoaded();

private:
    void load();
    void save();
    QSpinBox *spin(const char *name) { return m_page->findChild<QSpinBox *>(QLatin1String(name)); }
    QCheckBox *check(const char *name) { return m_page->findChild<QCheckBox *>(QLatin1String(name)); }
    QString shown();

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<ScreensaverPage> m_page;
};

void TestScreensaverPage::init()
{
    m_home.reset(); // the old home's environment goes first
    m_home = std::make_unique<TemporaryHome>();
    m_page = std::make_unique<ScreensaverPage>();
}

void TestScreensaverPage::load()
{
    QazSettings store(m_home->path(QStringLiteral("t")));
    store.sync(true);
    QVERIFY(m_page->loadValues(&store));
}

void TestScreensaverPage::save()
{
    QazSettings store(m_home->path(QStringLiteral("t")));
    store.sync(true);
    m_page->saveValues(&store);
}

QString TestScreensaverPage::shown()
{
    return QStringLiteral("%1%2 %3 %4 %5 %6%7")
        .arg(check("startAutomaticallyCheckBox")->isChecked() ? QStringLiteral("on ")
                                                              : QStringLiteral("off "))
        .arg(spin("minutesToStartSpinBox")->text(), spin("dpmsOffSpinBox")->text(),
             spin("wrongPasswordTimeoutSpinBox")->text(), spin("wrongPasswordBellSpinBox")->text(),
             check("lockTTYCheckBox")->isChecked() ? QStringLiteral("tty") : QString(),
             check("lockXaccessCheckBox")->isChecked() ? QStringLiteral("x") : QString());
}

void TestScreensaverPage::storedValuesAreShown_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("shownText");
    QTest::newRow("defaults") << QByteArray() << QStringLiteral("on 10min 1min 2sec 50% tty");
    QTest::newRow("all keys") << QByteArray(
        "ScreenSaverDelay=900\nLockerDpmsOffTimeout=120\nLockerWrongPasswdTimeout=7\n"
        "LockerBellLevel=0\nLockerTTYLock=false\nLockerXaccessLock=true\n")
                              << QStringLiteral("on 15min 2min 7sec 0% x");
    QTest::newRow("a started minute is dropped")
        << QByteArray("ScreenSaverDelay=90\n") << QStringLiteral("on 1min 1min 2sec 50% tty");
    QTest::newRow("below a minute is off")
        << QByteArray("ScreenSaverDelay=30\n") << QStringLiteral("off 0min 1min 2sec 50% tty");
    QTest::newRow("no number") << QByteArray("ScreenSaverDelay=soon\n")
                               << QStringLiteral("off 0min 1min 2sec 50% tty");
    QTest::newRow("below zero") << QByteArray("ScreenSaverDelay=-600\n")
                                << QStringLiteral("off 0min 1min 2sec 50% tty");
    QTest::newRow("too much is clamped")
        << QByteArray("ScreenSaverDelay=99999999\nLockerBellLevel=400\nLockerWrongPasswdTimeout=100\n")
        << QStringLiteral("on 999min 1min 99sec 100% tty");
    QTest::newRow("the lock boxes load any true value")
        << QByteArray("LockerTTYLock=0\nLockerXaccessLock=TRUE\n")
        << QStringLiteral("on 10min 1min 2sec 50% x");
}

void TestScreensaverPage::storedValuesAreShown()
{
    QFETCH(QByteArray, stored);
    QFETCH(QString, shownText);
    m_home->write(QStringLiteral("t"), stored);
    QVERIFY(!m_page->loaded);
    load();
    QVERIFY(m_page->loaded);
    QCOMPARE(shown(), shownText);
}

void TestScreensaverPage::savingUntouchedWritesOnlyWhatTheFormCannotHold_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("no key") << QByteArray("Other=1\n") << QByteArray("Other=1\n");
    QTest::newRow("a started minute")
        << QByteArray("ScreenSaverDelay=90\n") << QByteArray("ScreenSaverDelay=60\n");
    QTest::newRow("below a minute") << QByteArray("ScreenSaverDelay=30\n")
                                    << QByteArray("ScreenSaverDelay=0\n");
    QTest::newRow("clamped level") << QByteArray("LockerBellLevel=400\n")
                                   << QByteArray("LockerBellLevel=100\n");
    QTest::newRow("loaded as true, compared as false")
        << QByteArray("LockerXaccessLock=TRUE\n") << QByteArray("LockerXaccessLock=true\n");
}

void TestScreensaverPage::savingUntouchedWritesOnlyWhatTheFormCannotHold()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    m_home->write(QStringLiteral("t"), before);
    WmListener listener;
    load();
    save();
    QCOMPARE(m_home->read(QStringLiteral("t")), after);
    QCOMPARE(listener.take().size(), before == after ? 0 : 1);
    save();
    QCOMPARE(listener.take(), QStringList());
}

void TestScreensaverPage::everyEditIsSavedInOrder()
{
    WmListener listener;
    load();
    spin("minutesToStartSpinBox")->setValue(15);
    spin("dpmsOffSpinBox")->setValue(20);
    spin("wrongPasswordTimeoutSpinBox")->setValue(3);
    spin("wrongPasswordBellSpinBox")->setValue(4);
    check("lockTTYCheckBox")->setChecked(false);
    check("lockXaccessCheckBox")->setChecked(true);
    save();
    const QStringList expected = {QStringLiteral("QAZWM_UPDATE_VAL ScreenSaverDelay 900"),
                                  QStringLiteral("QAZWM_UPDATE_VAL LockerDpmsOffTimeout 1200"),
                                  QStringLiteral("QAZWM_UPDATE_VAL LockerWrongPasswdTimeout 3"),
                                  QStringLiteral("QAZWM_UPDATE_VAL LockerBellLevel 4"),
                                  QStringLiteral("QAZWM_UPDATE_VAL LockerTTYLock false"),
                                  QStringLiteral("QAZWM_UPDATE_VAL LockerXaccessLock true")};
    QCOMPARE(listener.take(), expected);
}

void TestScreensaverPage::aClearedCheckBoxSwitchesTheScreensaverOff()
{
    m_home->write(QStringLiteral("t"), "ScreenSaverDelay=600\n");
    load();
    check("startAutomaticallyCheckBox")->click();
    QCOMPARE(spin("minutesToStartSpinBox")->value(), 10);
    QVERIFY(spin("minutesToStartSpinBox")->isEnabled());
    save();
    QCOMPARE(m_home->read(QStringLiteral("t")), QByteArray("ScreenSaverDelay=0\n"));
}

void TestScreensaverPage::editsAreNoticedOnceLoaded()
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

QTEST_MAIN(TestScreensaverPage)
#include "tst_screensaverpage.moc"
