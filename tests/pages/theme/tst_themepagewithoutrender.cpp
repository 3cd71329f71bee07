#include "pages/theme/themepage.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/samplethemes.h"

/// Runs on an X server without the RENDER extension, and with a resolution of 118 dpi.
class TestThemePageWithoutRender : public QObject
{
    Q_OBJECT
private slots:
    void offersNoCursors()
    {
        PageOverFile<ThemePage> test;
        makeCursorTheme(test.home, ".icons/Red"_s, Qt::red);
        test.load("");
        const auto *cursors = test.find<QComboBox>("cursorThemeCombo");
        QVERIFY(cursors->count() == 0 && !cursors->isEnabled());
        QCOMPARE(test.find<QComboBox>("sizeComboBox")->itemText(0), "64,   Desktop icon size"_s);
    }
};

QTEST_MAIN(TestThemePageWithoutRender)
#include "tst_themepagewithoutrender.moc"
