#include "pages/screensaver/screensaverpage.h"
#include "tests/support/pageoverfile.h"

class TestScreensaverPage : public QObject
{
    Q_OBJECT
private slots:
    void valuesAreShownEditedAndSaved()
    {
        playOnPages<PageOverFile<ScreensaverPage>>(
            "pages/screensaver/steps.json"_s,
            "startAutomaticallyCheckBox minutesToStartSpinBox dpmsOffSpinBox wrongPasswordTimeoutSpinBox "
            "wrongPasswordBellSpinBox lockTTYCheckBox lockXaccessCheckBox"_s);
    }
};

QTEST_MAIN(TestScreensaverPage)
#include "tst_screensaverpage.moc"
